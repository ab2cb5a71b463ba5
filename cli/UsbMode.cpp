// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "UsbMode.h"

#include "Client.h"

using namespace platform;

namespace {

QString whyNotOpened(IOReturn error, const QString& name)
{
    switch (error) {
    case kIOReturnExclusiveAccess:
        return QStringLiteral("another program holds the %1").arg(name);
    case kIOReturnNotPermitted:
        return QStringLiteral(
            "you do not have permission to open the %1; the udev rule 60-quorvia-tablet.rules "
            "grants it to the user at the machine")
            .arg(name);
    case kIOReturnNoDevice:
        return QStringLiteral("the %1 was disconnected").arg(name);
    default:
        return QStringLiteral("the %1 could not be opened").arg(name);
    }
}

QString whyNotTaken(IOReturn error, const QString& name)
{
    switch (error) {
    case kIOUSBPipeStalled:
        return QStringLiteral("the %1 rejected the report mode").arg(name);
    case kIOReturnNoDevice:
        return QStringLiteral("the %1 was disconnected").arg(name);
    case kIOReturnTimeout:
        return QStringLiteral("the %1 does not answer").arg(name);
    default:
        return QStringLiteral("the %1 did not accept the report mode").arg(name);
    }
}

} // namespace

Result<QString> setUsbMode(bool isFast, std::uint16_t productID, const QString& name)
{
    const ReportModeOutcome outcome =
        requestReportMode(isFast ? kQVReportFast : kQVReportNormal, productID);
    if (!outcome.isSearched) {
        return Error{QStringLiteral("the USB bus cannot be searched")};
    }
    if (!outcome.isFound) {
        return Error{QStringLiteral("there is no %1 on the USB bus").arg(name)};
    }
    if (outcome.requested == kIOReturnSuccess) {
        return QStringLiteral("set the report speed of the %1 to %2")
            .arg(name, isFast ? QStringLiteral("fast") : QStringLiteral("normal"));
    }
    if (outcome.requested) {
        return Error{whyNotTaken(*outcome.requested, name)};
    }
    if (outcome.opened) {
        return Error{whyNotOpened(*outcome.opened, name)};
    }
    if (outcome.configurations && outcome.configurations != 1) {
        return Error{
            QStringLiteral("the %1 has %2 configurations instead of one, so it was skipped")
                .arg(name, QString::number(*outcome.configurations))};
    }
    return Error{
        QStringLiteral("the %1 does not return its descriptors, so it was skipped").arg(name)};
}
