// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "TabPage.h"

#include <QLabel>
#include <QTabWidget>
#include <QVBoxLayout>

#include <gtest/gtest.h>

using platform::TabPage;

namespace {

/** Counts the requests for its size. */
class Content final : public QLabel {
public:
    explicit Content(QWidget* parent)
        : QLabel(QStringLiteral("text"), parent)
    {
        setMinimumSize(1000, 700);
    }
    QSize sizeHint() const override
    {
        ++asked;
        return QLabel::sizeHint();
    }

    mutable int asked = 0;
};

class Tabs : public testing::Test {
protected:
    Tabs()
    {
        setTextHeight(13);
        mContent.setWordWrap(true); // it has a height for each width
        auto* const layout = new QVBoxLayout(&mSecond);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->addWidget(&mContent);
        mTabs.addTab(&mFirst, QStringLiteral("first"));
        mTabs.addTab(&mSecond, QStringLiteral("second"));
    }
    ~Tabs() override
    {
        for (QWidget* const widget :
            {static_cast<QWidget*>(&mFirst), static_cast<QWidget*>(&mSecond)}) {
            widget->setParent(nullptr);
        }
    }

    void setTextHeight(int pixels)
    {
        QFont font;
        font.setPixelSize(pixels);
        mTabs.setFont(font);
    }

    QTabWidget mTabs;
    TabPage mFirst;
    TabPage mSecond;
    Content mContent{&mSecond};
};

} // namespace

TEST_F(Tabs, aHiddenPageNeedsAndAsksForTheUsualRoom)
{
    EXPECT_EQ(mSecond.minimumSizeHint(), QSize(600, 300));
    EXPECT_EQ(mSecond.sizeHint(), QSize(800, 450));
    EXPECT_FALSE(mTabs.hasHeightForWidth());
    EXPECT_LT(mTabs.minimumSizeHint().width(), 1000);
    EXPECT_GE(mTabs.sizeHint().width(), 800);
    EXPECT_GE(mTabs.sizeHint().height(), 450);
}

TEST_F(Tabs, theUsualRoomGrowsWithTheText)
{
    setTextHeight(26);
    EXPECT_EQ(mSecond.sizeHint(), QSize(1600, 900));
    EXPECT_EQ(mSecond.minimumSizeHint(), QSize(1200, 600));
}

TEST_F(Tabs, thePageThatIsShownNeedsWhatIsOnIt)
{
    mTabs.setCurrentIndex(1);
    EXPECT_EQ(mSecond.minimumSizeHint(), QSize(1000, 700));
    EXPECT_EQ(mSecond.sizeHint(), QSize(1000, 700));
    EXPECT_TRUE(mTabs.hasHeightForWidth());
    EXPECT_GE(mTabs.minimumSizeHint().width(), 1000);
    mTabs.setCurrentIndex(0);
    EXPECT_LT(mTabs.minimumSizeHint().width(), 1000);
}

TEST_F(Tabs, nobodyLooksIntoAPageBeforeItIsShown)
{
    mTabs.show();
    EXPECT_EQ(mContent.asked, 0);
    mTabs.setCurrentIndex(1);
    EXPECT_GT(mContent.asked, 0);
}
