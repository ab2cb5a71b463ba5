// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>
#include <QObject>
#include <QString>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include <functional>

/** Answers the next alert that opens, with a button's text or a key. */
class AlertAnswer final : public QObject {
public:
    explicit AlertAnswer(const char* button)
    {
        answer([name = QString::fromLatin1(button)](const QMessageBox& box) {
            const auto buttons = box.buttons();
            for (QAbstractButton* const candidate : buttons) {
                if (candidate->text().remove(u'&') == name) {
                    candidate->click();
                    return;
                }
            }
            ADD_FAILURE() << "the alert has no button " << name.toStdString();
        });
    }
    explicit AlertAnswer(Qt::Key key)
    {
        answer([key](QMessageBox& box) { QTest::keyClick(&box, key); });
    }
    ~AlertAnswer() override { EXPECT_FALSE(mText.isNull()) << "no alert was open"; }

    /** The alert's text, and below it the informative one. */
    QString text() const { return mText; }

private:
    void answer(std::function<void(QMessageBox&)> how)
    {
        QTimer::singleShot(0, this, [this, how = std::move(how)] {
            auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            ASSERT_NE(box, nullptr) << "no alert is open";
            mText = box->text();
            if (!box->informativeText().isEmpty()) {
                mText += u'\n' + box->informativeText();
            }
            how(*box);
        });
    }

    QString mText;
};
