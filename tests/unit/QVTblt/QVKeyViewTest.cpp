// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "QVKeyView.h"

#include "QVTabletModels.h"
#include "QVTblt_prefPanePref.h"
#include "TemporaryHome.h"
#include "rzkApplication.h"

#include <QImage>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <cstdlib>

namespace {

class KeyView : public testing::Test {
protected:
    KeyView()
    {
        qvTabletInfo = {};
        rzkBundle = platform::Bundle(mFolder.path());
        mView.resize(40, 30);
    }
    ~KeyView() override { rzkBundle = {}; }

    void addPicture(const char* name, const QColor& color)
    {
        QImage image(80, 60, QImage::Format_RGB32);
        image.fill(color);
        image.setDotsPerMeterX(5669);
        image.setDotsPerMeterY(5669);
        ASSERT_TRUE(image.save(mFolder.filePath(QString::fromLatin1(name)), "PNG"));
    }
    void removePicture(const char* name)
    {
        ASSERT_TRUE(QFile::remove(mFolder.filePath(QString::fromLatin1(name))));
    }

    /** The colour in the view's middle after a draw; transparent where nothing was drawn. */
    QColor draw(std::uint16_t productID)
    {
        qvTabletInfo.Basic.ProductID = static_cast<std::int16_t>(productID);
        mView.setNeedsDisplay();
        QImage image(mView.size(), QImage::Format_ARGB32);
        image.fill(Qt::transparent);
        mView.render(&image, {}, {}, QWidget::DrawChildren);
        return image.pixelColor(20, 15);
    }

    QTemporaryDir mFolder;
    QVKeyView mView;
};

constexpr std::uint16_t kDraft = 0x5101; // tabletpic6
constexpr std::uint16_t kSlate = 0x5122; // tabletpic7
constexpr std::uint16_t kPocket = 0x5110; // none
const QColor kNothing(0, 0, 0, 0);

} // namespace

TEST_F(KeyView, noProductDrawsNothing)
{
    addPicture("tabletpic6.PNG", Qt::red);
    EXPECT_EQ(draw(0), kNothing);
}

TEST_F(KeyView, drawsTheModelsPicture)
{
    addPicture("tabletpic6.PNG", Qt::red);
    addPicture("tabletpic7.png", Qt::blue);
    EXPECT_EQ(draw(kDraft), QColor(Qt::red));
    EXPECT_EQ(draw(kSlate), QColor(Qt::blue));
}

TEST_F(KeyView, aModelWithoutAPictureLeavesItEmpty)
{
    addPicture("tabletpic6.PNG", Qt::red);
    EXPECT_EQ(draw(kDraft), QColor(Qt::red));
    EXPECT_EQ(draw(kPocket), kNothing);
    EXPECT_EQ(draw(0xFFFF), kNothing);
}

TEST_F(KeyView, saysWhetherThereIsAPicture)
{
    const QString none = QStringLiteral("There is no picture of this model.");
    draw(kDraft);
    EXPECT_TRUE(mView.spokenContents().endsWith(QStringLiteral("has the number of its list.")));
    draw(kPocket);
    EXPECT_EQ(mView.spokenContents(), none);
    draw(0);
    EXPECT_EQ(mView.spokenContents(), none);
}

TEST_F(KeyView, switchingBackLoadsThePictureAgain)
{
    addPicture("tabletpic6.PNG", Qt::red);
    EXPECT_EQ(draw(kDraft), QColor(Qt::red));
    EXPECT_EQ(draw(kPocket), kNothing);
    addPicture("tabletpic6.PNG", Qt::green);
    EXPECT_EQ(draw(kDraft), QColor(Qt::green));
}

TEST_F(KeyView, readsTheFileOnlyWhenTheProductChanges)
{
    addPicture("tabletpic6.PNG", Qt::red);
    EXPECT_EQ(draw(kDraft), QColor(Qt::red));
    removePicture("tabletpic6.PNG");
    EXPECT_EQ(draw(kDraft), QColor(Qt::red));
}

TEST_F(KeyView, takesTheDenserPictureWhereItHasMorePixelsThanThePlainOne)
{
    addPicture("tabletpic6.PNG", Qt::red);
    addPicture("tabletpic6@2x.PNG", Qt::blue);
    const double density = mView.devicePixelRatioF();
    mView.resize(static_cast<int>(384 / density), 30);
    EXPECT_EQ(draw(kDraft), QColor(Qt::red));
    mView.resize(static_cast<int>(384 / density) + 1, 30);
    EXPECT_EQ(draw(kDraft), QColor(Qt::blue));
    mView.resize(static_cast<int>(384 / density), 30);
    EXPECT_EQ(draw(kDraft), QColor(Qt::red));
    removePicture("tabletpic6@2x.PNG");
    mView.resize(800, 30);
    EXPECT_EQ(draw(kDraft), QColor(Qt::red)) << "better than none";
}

TEST_F(KeyView, aMissingFileDrawsNothingAndIsNotLookedForAgain)
{
    testing::internal::CaptureStderr();
    EXPECT_EQ(draw(kDraft), kNothing);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
    addPicture("tabletpic6.PNG", Qt::red);
    EXPECT_EQ(draw(kDraft), kNothing);
}

TEST_F(KeyView, aFileThatIsNoPictureDrawsNothing)
{
    writeFile(mFolder.filePath(QStringLiteral("tabletpic6.PNG")), "no picture");
    EXPECT_EQ(draw(kDraft), kNothing);
}

TEST_F(KeyView, aFileTypesCapitalsMatter)
{
    addPicture("tabletpic6.png", Qt::red);
    addPicture("tabletpic7.PNG", Qt::blue);
    EXPECT_EQ(draw(kDraft), kNothing);
    EXPECT_EQ(draw(kSlate), kNothing);
}

TEST_F(KeyView, everyPictureOfTheTableIsInTheBundleAndFillsTheView)
{
    rzkBundle = platform::Bundle(QStringLiteral(QVTBLT_STAGE_RESOURCES));
    mView.resize(384, 270);
    const QStringList names{QString(), QStringLiteral("tabletpic1.jpg"),
        QStringLiteral("tabletpic2.jpg"), QStringLiteral("tabletpic3.jpg"),
        QStringLiteral("tabletpic4.jpg"), QStringLiteral("tabletpic5.png"),
        QStringLiteral("tabletpic6.PNG"), QStringLiteral("tabletpic7.png")};
    for (const QVTabletModel& model : kQVTabletModels) {
        const QString& name = names[static_cast<int>(model.picture)];
        if (name.isEmpty()) {
            EXPECT_EQ(draw(model.productID), kNothing) << model.name;
            continue;
        }
        // Of all pictures it is most like its own, along a line through the keys.
        draw(model.productID);
        const QImage view = mView.grab().toImage();
        const auto difference = [&view](const QString& file) {
            const QImage picture(QStringLiteral(QVTBLT_STAGE_RESOURCES "/") + file);
            int sum = 0;
            for (int y = 20; y < 250; ++y) {
                sum += std::abs(view.pixelColor(48, y).red() - picture.pixelColor(48, y).red());
            }
            return sum;
        };
        for (const QString& other : names) {
            if (!other.isEmpty() && other != name) {
                EXPECT_LT(2 * difference(name), difference(other))
                    << model.name << ' ' << qPrintable(other);
            }
        }
    }
    for (const QString& name : names) {
        for (const int density : {1, 2}) {
            QString file = QStringLiteral(QVTBLT_STAGE_RESOURCES "/") + name;
            file.replace(u'.', density == 1 ? QStringLiteral(".") : QStringLiteral("@2x."));
            const QImage picture(file);
            EXPECT_EQ(picture.isNull(), name.isEmpty()) << qPrintable(file);
            if (!name.isEmpty()) {
                const platform::Rect bounds = platform::imageBounds(picture);
                EXPECT_NEAR(bounds.width, 384, 0.1) << qPrintable(file);
                EXPECT_NEAR(bounds.height, 270, 0.1) << qPrintable(file);
                EXPECT_EQ(picture.width(), 384 * density) << qPrintable(file);
            }
        }
    }
}
