// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "QVKeyView.h"

#include "QVTabletModels.h"
#include "TemporaryHome.h"
#include "rzkApplication.h"
#include "rzkBundle.h"

#include <QImage>
#include <QPainter>
#include <QPalette>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <set>
#include <string_view>

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

    /** Draws, and returns the colour in the view's middle; transparent if nothing was drawn. */
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

/** The product ID of the first model with a picture; with none for an empty name. */
std::uint16_t productWith(std::string_view picture)
{
    return std::ranges::find(kQVTabletModels, picture, [](const QVTabletModel& model) {
        return std::string_view(model.picture == nullptr ? "" : model.picture);
    })->productID;
}

/** The pictures of all models. */
std::set<QString> pictures()
{
    std::set<QString> names;
    for (const QVTabletModel& model : kQVTabletModels) {
        if (model.picture != nullptr) {
            names.insert(QString::fromLatin1(model.picture));
        }
    }
    return names;
}

const std::uint16_t kDraft = productWith("tabletpic6.PNG");
const std::uint16_t kSlate = productWith("tabletpic7.png");
const std::uint16_t kPocket = productWith("");
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

TEST_F(KeyView, takesTheDarkPictureInADarkTheme)
{
    addPicture("tabletpic6.PNG", Qt::red);
    addPicture("tabletpic6-dark.PNG", Qt::blue);
    QPalette palette;
    palette.setColor(QPalette::Window, QColor(0xEF, 0xF0, 0xF1));
    mView.setPalette(palette);
    EXPECT_EQ(draw(kDraft), QColor(Qt::red));
    palette.setColor(QPalette::Window, QColor(0x2A, 0x2E, 0x32));
    mView.setPalette(palette);
    EXPECT_EQ(draw(kDraft), QColor(Qt::blue));
    removePicture("tabletpic6-dark.PNG");
    EXPECT_EQ(draw(kDraft), QColor(Qt::blue)) << "it is read once";
    EXPECT_EQ(draw(kSlate), kNothing);
    EXPECT_EQ(draw(kDraft), QColor(Qt::red)) << "better than none";
}

TEST_F(KeyView, isDrawnAgainWhenTheThemeChanges)
{
    addPicture("tabletpic6.PNG", Qt::red);
    addPicture("tabletpic6-dark.PNG", Qt::blue);
    mView.setPalette(QPalette(QColor(0xEF, 0xF0, 0xF1)));
    EXPECT_EQ(draw(kDraft), QColor(Qt::red));
    mView.setPalette(QPalette(QColor(0x2A, 0x2E, 0x32)));
    EXPECT_EQ(mView.grab().toImage().pixelColor(20, 15), QColor(Qt::blue));
}

TEST_F(KeyView, showsTheLowerLeftPartOfAPictureLargerThanItself)
{
    // Two pixels per point, like all of them: 60 x 50 points for a view of 40 x 30.
    QImage image(120, 100, QImage::Format_RGB32);
    image.setDotsPerMeterX(5669);
    image.setDotsPerMeterY(5669);
    image.fill(Qt::red);
    QPainter painter(&image);
    painter.fillRect(0, 40, 80, 60, Qt::blue); // the part that fits the view
    painter.end();
    ASSERT_TRUE(image.save(mFolder.filePath(QStringLiteral("tabletpic6.PNG")), "PNG"));
    draw(kDraft);
    const QImage drawn = mView.grab().toImage();
    const int density = static_cast<int>(mView.devicePixelRatioF());
    for (int y = 2; y < 28; ++y) {
        for (int x = 2; x < 38; ++x) {
            ASSERT_EQ(drawn.pixelColor(x * density, y * density), QColor(Qt::blue))
                << x << ' ' << y;
        }
    }
    // One point more to the right or above shows red.
    mView.resize(44, 34);
    draw(kDraft);
    const QImage larger = mView.grab().toImage();
    EXPECT_EQ(larger.pixelColor(42 * density, 30 * density), QColor(Qt::red));
    EXPECT_EQ(larger.pixelColor(20 * density, 1 * density), QColor(Qt::red));
    EXPECT_EQ(larger.pixelColor(37 * density, 6 * density), QColor(Qt::blue));
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
    const std::set<QString> names = pictures();
    for (const QVTabletModel& model : kQVTabletModels) {
        if (model.picture == nullptr) {
            EXPECT_EQ(draw(model.productID), kNothing) << model.name;
            continue;
        }
        const QString name = QString::fromLatin1(model.picture);
        // It resembles its own picture most, along a line through the keys.
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
            if (other != name) {
                EXPECT_LT(2 * difference(name), difference(other))
                    << model.name << ' ' << qPrintable(other);
            }
        }
    }
}

TEST_F(KeyView, everyPictureHasItsTrueColoursAndSizeInAllItsForms)
{
    struct Form {
        const char* suffix;
        int density;
        QRgb ground; ///< of the light and dark drawings
    };
    constexpr std::array<Form, 4> kForms{{{".", 1, 0xFFEEF0F3}, {"@2x.", 2, 0xFFEEF0F3},
        {"-dark.", 1, 0xFF24282E}, {"-dark@2x.", 2, 0xFF24282E}}};
    for (const QString& name : pictures()) {
        for (const Form& form : kForms) {
            QString file = name;
            file.replace(QStringLiteral("."), QString::fromLatin1(form.suffix));
            SCOPED_TRACE(qPrintable(file));
            const QImage picture(QStringLiteral(QVTBLT_STAGE_RESOURCES "/") + file);
            ASSERT_FALSE(picture.isNull());
            const platform::Rect bounds = platform::imageBounds(picture);
            EXPECT_NEAR(bounds.width, 384, 0.1);
            EXPECT_NEAR(bounds.height, 270, 0.1);
            EXPECT_EQ(picture.width(), 384 * form.density);
            const QColor ground = picture.pixelColor(4, 4);
            // JPEG rounds when it converts colours.
            const int rounding = file.endsWith(QStringLiteral("jpg")) ? 2 : 0;
            EXPECT_NEAR(ground.red(), qRed(form.ground), rounding);
            EXPECT_NEAR(ground.green(), qGreen(form.ground), rounding);
            EXPECT_NEAR(ground.blue(), qBlue(form.ground), rounding);
        }
    }
}
