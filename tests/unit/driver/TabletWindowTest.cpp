// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "TabletWindow.h"

#include "Driver.h"
#include "ErrorText.h"
#include "FakeEvents.h"
#include "LayoutModels.h"
#include "QVDriverProtocol.h"
#include "TemporaryHome.h"
#include "rzkApplication.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QDBusConnection>
#include <QLabel>
#include <QLayout>
#include <QTest>
#include <QTranslator>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>

namespace {

/** The frame of a window, with a title of 18 points. */
constexpr QSize kFrame{16, 46};

/** A tablet's window with a driver of its own. */
class TabletWindowTest : public testing::Test {
protected:
    ~TabletWindowTest() override { QApplication::setFont(mFont); }

    /** Sends the driver the settings, as a panel does. */
    void push(const tagQVTabletInfo& settings)
    {
        platform::AppleEvent reply;
        const QByteArray record = QVBytesOf(settings);
        const auto handler = mEvents.handlers.at({kQVDriverSignature, kQVSettingsEvent});
        testing::internal::CaptureStdout();
        EXPECT_EQ(handler({kQVDriverSignature, kQVSettingsEvent,
                              {platform::typeBusName, QByteArray(":1.1")},
                              {{platform::fourCharCode("data"), {platform::typeUTF8Text, record}}}},
                      reply),
            platform::noErr);
        testing::internal::GetCapturedStdout();
    }

    void attach(std::uint16_t productID)
    {
        testing::internal::CaptureStdout();
        EXPECT_EQ(errorText(mDriver.attach(productID)), "");
        testing::internal::GetCapturedStdout();
    }

    QFont mFont = QApplication::font();
    TemporaryHome mHome;
    FakeEvents mEvents;
    Driver mDriver{mEvents, QDBusConnection(QStringLiteral("none"))};
};

/** Settings of that tablet, with texts as long as they get in practice. */
tagQVTabletInfo longSettings(std::uint16_t productID)
{
    tagQVTabletInfo settings{};
    settings.Basic.ProductID = static_cast<std::int16_t>(productID);
    settings.Basic.TabletXmax = 50800;
    settings.Basic.TabletYmax = 31750;
    settings.Monitor.cTabletXmin = 10000;
    settings.Monitor.cTabletXmax = 40000;
    settings.Monitor.cTabletYmin = 10000;
    settings.Monitor.cTabletYmax = 30000;
    settings.Monitor.disableFlag = 1;
    for (tagQVTabletInfoSubKey& key : settings.Key.SubKey) {
        key.Valid = 2;
        std::strcpy(
            key.App.data(), "/usr/share/applications/org.example.a-studio-for-drawings.desktop");
    }
    return settings;
}

/** Names a widget of the window without enough room; empty if there is none. */
QString lacksRoom(const QWidget& window)
{
    for (const QWidget* const child : window.findChildren<QWidget*>()) {
        if (!child->isVisible()) {
            continue;
        }
        const QRect place(child->mapTo(&window, QPoint()), child->size());
        const auto* const label = qobject_cast<const QLabel*>(child);
        const int height = label != nullptr && label->hasHeightForWidth()
            ? label->heightForWidth(label->width())
            : 0;
        const bool isControl = qobject_cast<const QAbstractButton*>(child) != nullptr
            || qobject_cast<const QComboBox*>(child) != nullptr;
        const int least = isControl ? child->fontMetrics().height() : 0;
        if (!window.rect().contains(place) || child->height() < height || child->height() < least) {
            return QStringLiteral("%1 \"%2\" at %3, %4, %5 x %6")
                .arg(QString::fromLatin1(child->metaObject()->className()),
                    label == nullptr ? child->accessibleName() : label->text())
                .arg(place.x())
                .arg(place.y())
                .arg(place.width())
                .arg(place.height());
        }
    }
    return {};
}

} // namespace

TEST_F(TabletWindowTest, fitsSmallScreensWithLargeLettersInEveryLanguage)
{
    for (const char* const language : {"en", "fr", "de", "ja", "zh-Hans", "es"}) {
        QTranslator translator;
        if (qstrcmp(language, "en") != 0) {
            ASSERT_TRUE(translator.load(
                QStringLiteral(QVTBLT_STAGE_BIN "/../share/tdsg-driver/%1.lproj/tdsg-driver.qm")
                    .arg(QLatin1String(language))));
            QCoreApplication::installTranslator(&translator);
        }
        for (const int points : {10, 14, 18}) {
            QFont font = mFont;
            font.setPointSize(points);
            QApplication::setFont(font);
            for (const ushort product : productsOfEachLayout()) {
                attach(product);
                TabletWindow window(mDriver);
                window.show();
                push(longSettings(product));
                for (auto* const key : window.findChildren<QAbstractButton*>()) {
                    QTest::mouseClick(key, Qt::LeftButton);
                }
                for (const QSize& screen : {QSize(1024, 600), QSize(1366, 768)}) {
                    const QSize most = screen - kFrame;
                    const QSize usual = window.usualSize(screen);
                    window.resize(usual);
                    QCoreApplication::sendPostedEvents();
                    QCoreApplication::processEvents();
                    const auto where = [&] {
                        return QStringLiteral("%1, %2 pt, %3, %4 x %5")
                            .arg(QLatin1String(language))
                            .arg(points)
                            .arg(product, 0, 16)
                            .arg(window.width())
                            .arg(window.height())
                            .toStdString();
                    };
                    EXPECT_LE(window.width(), most.width()) << where();
                    EXPECT_LE(window.height(), most.height()) << where();
                    EXPECT_EQ(lacksRoom(window).toStdString(), "") << where();
                }
            }
        }
        QCoreApplication::removeTranslator(&translator);
    }
}

TEST_F(TabletWindowTest, aPathThatIsTooLongKeepsItsBeginningAndItsEnd)
{
    constexpr std::uint16_t kProduct = productOf(QVKeyLayout::G);
    attach(kProduct);
    TabletWindow window(mDriver);
    window.show();
    tagQVTabletInfo settings = longSettings(kProduct);
    const std::string path = "/opt/" + std::string(200, 'w') + "/krita.AppImage";
    std::strcpy(settings.Key.SubKey[0].App.data(), path.c_str());
    push(settings);
    const QList<QAbstractButton*> buttons = window.findChildren<QAbstractButton*>();
    const auto key = std::ranges::find_if(buttons, [](const QAbstractButton* button) {
        return button->accessibleName() == QLatin1String("Key 1");
    });
    ASSERT_NE(key, buttons.end());
    QTest::mouseClick(*key, Qt::LeftButton);
    const QList<QLabel*> labels = window.findChildren<QLabel*>();
    const auto told = std::ranges::find_if(labels, [](const QLabel* label) {
        return label->accessibleName().startsWith(QLatin1String("Key 1: "));
    });
    ASSERT_NE(told, labels.end());
    const QString whole = QStringLiteral("Key 1: Open ") + QString::fromStdString(path);
    EXPECT_EQ((*told)->accessibleName(), whole);
    EXPECT_EQ((*told)->toolTip(), whole);
    EXPECT_TRUE((*told)->text().startsWith(QLatin1String("Key 1: Open /opt/")));
    EXPECT_TRUE((*told)->text().endsWith(QLatin1String("/krita.AppImage")));
    EXPECT_LE((*told)->fontMetrics().horizontalAdvance((*told)->text()), (*told)->width());
    // With enough room, all of it is shown again.
    window.resize(4000, 500);
    QCoreApplication::sendPostedEvents();
    EXPECT_EQ((*told)->text(), whole);
    EXPECT_EQ((*told)->toolTip(), QString());
}
