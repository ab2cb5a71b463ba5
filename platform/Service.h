// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <utility>

namespace platform {

/**
 * Replaces a service by another implementation for the lifetime of the scope; scopes nest. Main
 * thread only. The implementation must outlive the scope.
 */
template <class Service>
class ServiceScope {
public:
    [[nodiscard]] explicit ServiceScope(Service& service)
        : mBefore(std::exchange(current(), &service))
    {
    }
    ~ServiceScope() { current() = mBefore; }
    ServiceScope(const ServiceScope&) = delete;
    ServiceScope& operator=(const ServiceScope&) = delete;

    /** The current replacement; null for the desktop's own. */
    static Service*& current()
    {
        static Service* service = nullptr;
        return service;
    }

private:
    Service* mBefore;
};

/** What an accessor returns: the replacement by a scope, or else the desktop's own service. */
template <class Service, class Desktop>
Service& currentService()
{
    if (Service* const replaced = ServiceScope<Service>::current()) {
        return *replaced;
    }
    static Desktop desktop;
    return desktop;
}

/** Returns the process's only instance, which exists while it is used. Main thread only. */
template <class Instance>
std::shared_ptr<Instance> sharedInstance()
{
    static std::weak_ptr<Instance> present;
    std::shared_ptr<Instance> instance = present.lock();
    if (!instance) {
        instance = std::make_shared<Instance>();
        present = instance;
    }
    return instance;
}

} // namespace platform
