// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "Alerts.h"

#include "Service.h"

#include <QMessageBox>
#include <QPointer>
#include <QWindow>

namespace platform {

namespace {

class DesktopAlerts final : public Alerts {
public:
    std::int16_t runStandardAlert(const StandardAlert& alert, QWidget* parent) override
    {
        // The parent may be destroyed, and the alert with it, before the answer.
        const QPointer<QMessageBox> box = new QMessageBox(parent);
        box->setIcon(alert.type == AlertType::Stop ? QMessageBox::Question
                : alert.type == AlertType::Caution ? QMessageBox::Warning
                                                   : QMessageBox::Information);
        box->setWindowTitle(alert.title);
        box->setText(alert.message);
        box->setInformativeText(alert.explanation);
        box->setTextFormat(Qt::PlainText);
        box->addButton(QMessageBox::Ok);
        if (alert.hasCancelButton) {
            box->addButton(QMessageBox::Cancel);
        }
        box->setDefaultButton(QMessageBox::Ok);
        // Stay on top, like the parent.
        box->setWindowFlag(Qt::WindowStaysOnTopHint);
        QWindow* const below = parent == nullptr ? nullptr : parent->window()->windowHandle();
        if (below != nullptr) {
            QObject::connect(below, &QWindow::visibleChanged, box, [box](bool isVisible) {
                if (!isVisible && !box.isNull()) {
                    box->done(QMessageBox::NoButton);
                }
            });
        }
        const int hit = box->exec();
        if (box.isNull()) {
            return 0;
        }
        delete box;
        switch (hit) {
        case QMessageBox::Ok:
            return kAlertStdAlertOKButton;
        case QMessageBox::Cancel:
            return kAlertStdAlertCancelButton;
        default:
            return 0;
        }
    }
};

} // namespace

Alerts& alerts()
{
    return currentService<Alerts, DesktopAlerts>();
}

} // namespace platform
