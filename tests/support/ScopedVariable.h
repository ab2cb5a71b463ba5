// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QtGlobal>

/** For its lifetime, an environment variable has that value; empty is unset. */
class ScopedVariable {
public:
    ScopedVariable(const char* name, const char* value)
        : mName(name)
        , mBefore(qgetenv(name))
    {
        set(value);
    }
    ~ScopedVariable() { set(mBefore); }
    Q_DISABLE_COPY_MOVE(ScopedVariable)

private:
    void set(const QByteArray& value)
    {
        value.isEmpty() ? qunsetenv(mName) : qputenv(mName, value);
    }

    const char* mName;
    QByteArray mBefore;
};
