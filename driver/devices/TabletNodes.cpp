// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "TabletNodes.h"

#include <QFile>

#include <cerrno>
#include <ctime>
#include <fcntl.h>
#include <sys/ioctl.h>

using platform::Error;
using platform::Result;

namespace {

std::unique_ptr<Descriptor> openNode(const QString& path)
{
    if (path.isEmpty()) {
        return std::make_unique<Descriptor>(-1);
    }
    auto node = std::make_unique<Descriptor>(
        ::open(QFile::encodeName(path).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    int clock = CLOCK_MONOTONIC;
    if (node->get() >= 0) {
        ::ioctl(node->get(), EVIOCSCLOCKID, &clock);
    }
    return node;
}

Error openError(const Tablet& tablet, const QString& node, int error)
{
    if (error == EACCES || error == EPERM) {
        return Error{QStringLiteral("%1 may not be opened by this user (%2). Install the package "
                                    "tdsg-driver-access, and plug the tablet in again.")
                         .arg(tablet.name, node)};
    }
    return Error{QStringLiteral("%1 cannot be opened: %2: %3")
                     .arg(tablet.name, node, qt_error_string(error))};
}

/** What is known of a tablet that is not open. */
QVariantMap entriesOf(const Tablet& tablet, const QString& problem)
{
    return {{QStringLiteral("id"), tablet.id()}, {QStringLiteral("name"), tablet.name},
        {QStringLiteral("vendor"), QVariant::fromValue(tablet.vendor)},
        {QStringLiteral("product"), QVariant::fromValue(tablet.product)},
        {QStringLiteral("node"), tablet.penNode}, {QStringLiteral("problem"), problem}};
}

double millimetres(const Axis& axis)
{
    return axis.resolution > 0 ? static_cast<double>(axis.range()) / axis.resolution : 0;
}

} // namespace

Result<TabletNodes> TabletNodes::open(const Tablet& tablet)
{
    TabletNodes nodes{openNode(tablet.penNode), nullptr, {}, {}};
    if (nodes.penFile->get() < 0) {
        return openError(tablet, tablet.penNode, errno);
    }
    nodes.padFile = openNode(tablet.padNode);
    if (nodes.padFile->get() < 0 && !tablet.padNode.isEmpty()) {
        return openError(tablet, tablet.padNode, errno);
    }
    const NodeState pen = readNode(nodes.penFile->get());
    const std::optional<PenDescription> described =
        pen == nullptr ? std::nullopt : describePen(*pen);
    if (!described) {
        return Error{QStringLiteral("%1 does not report the position of the pen").arg(tablet.name)};
    }
    nodes.pen = *described;
    if (const NodeState pad = readNode(nodes.padFile->get())) {
        nodes.pad = describePad(*pad);
    }
    return nodes;
}

QVariantMap describeTablet(const Tablet& tablet)
{
    const Result<TabletNodes> nodes = TabletNodes::open(tablet);
    return nodes ? describeTablet(tablet, *nodes) : entriesOf(tablet, nodes.error().text);
}

QVariantMap describeTablet(const Tablet& tablet, const TabletNodes& nodes)
{
    QVariantMap entries = entriesOf(tablet, QString());
    const PenDescription& pen = nodes.pen;
    entries.insert(QStringLiteral("width"), millimetres(pen.x));
    entries.insert(QStringLiteral("height"), millimetres(pen.y));
    const std::int32_t levels = pen.pressure ? pen.pressure->range() + 1 : 0;
    entries.insert(QStringLiteral("pressureLevels"), static_cast<uint>(levels));
    entries.insert(QStringLiteral("tilt"), pen.tiltX.has_value());
    entries.insert(QStringLiteral("eraser"), pen.hasEraser);
    entries.insert(QStringLiteral("keys"), static_cast<uint>(nodes.pad.keys.size()));
    entries.insert(QStringLiteral("strips"), static_cast<uint>(nodes.pad.strips.size()));
    return entries;
}
