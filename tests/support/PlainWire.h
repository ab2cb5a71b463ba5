// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusArgument>
#include <QDBusMetaType>
#include <QDBusVariant>

/**
 * @file
 * The wire's types again, with QtDBus only, so that the tests do not rely on the program's own
 * code.
 */

/** (uv) */
struct TestDesc {
    uint type;
    QDBusVariant data;
};

/** (u(uv)) */
struct TestParameter {
    uint keyword;
    TestDesc desc;
};
Q_DECLARE_METATYPE(TestDesc)
Q_DECLARE_METATYPE(TestParameter)

inline QDBusArgument& operator<<(QDBusArgument& argument, const TestDesc& desc)
{
    argument.beginStructure();
    argument << desc.type << desc.data;
    argument.endStructure();
    return argument;
}

inline const QDBusArgument& operator>>(const QDBusArgument& argument, TestDesc& desc)
{
    argument.beginStructure();
    argument >> desc.type >> desc.data;
    argument.endStructure();
    return argument;
}

inline QDBusArgument& operator<<(QDBusArgument& argument, const TestParameter& parameter)
{
    argument.beginStructure();
    argument << parameter.keyword << parameter.desc;
    argument.endStructure();
    return argument;
}

inline const QDBusArgument& operator>>(const QDBusArgument& argument, TestParameter& parameter)
{
    argument.beginStructure();
    argument >> parameter.keyword >> parameter.desc;
    argument.endStructure();
    return argument;
}

using Parameters = QList<TestParameter>;
using Descriptors = QList<TestDesc>;

/** Must be called before the first use of the types. */
inline void registerPlainWire()
{
    qDBusRegisterMetaType<TestDesc>();
    qDBusRegisterMetaType<Descriptors>();
    qDBusRegisterMetaType<TestParameter>();
    qDBusRegisterMetaType<Parameters>();
}

inline QVariant parameters(const Parameters& list)
{
    return QVariant::fromValue(list);
}
