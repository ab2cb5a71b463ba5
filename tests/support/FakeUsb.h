// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Service.h"
#include "Sleep.h"
#include "Usb.h"

#include <deque>
#include <string>
#include <utility>
#include <vector>

/** The behaviour of a fake service. */
struct FakeUsbService {
    platform::IOReturn interfaceError = platform::kIOReturnSuccess; ///< of its creation
    int configurations = 1;
    std::uint8_t configurationValue = 7;
    platform::IOReturn countError = platform::kIOReturnSuccess;
    platform::IOReturn descriptorError = platform::kIOReturnSuccess;
    std::deque<platform::IOReturn> openErrors; ///< results of opening, in order; then success
    platform::IOReturn requestError = platform::kIOReturnSuccess;
    platform::IOReturn configurationError = platform::kIOReturnSuccess;
    std::vector<FakeUsbService> interfaces;
};

/** Replaces USB and sleep for its lifetime: every step can fail, and a sleep returns at once. */
class FakeUsb final : public platform::Usb, public platform::Sleep {
public:
    platform::IOReturn mainPortError = platform::kIOReturnSuccess;
    bool hasMatching = true;
    platform::IOReturn servicesError = platform::kIOReturnSuccess;
    std::vector<FakeUsbService> devices;
    bool goesWithReset = false; ///< after a reset, there is no device

    platform::UsbMatching asked;
    std::vector<std::string> log; ///< "open", "request", "sleep 1000", …
    std::vector<platform::UsbDeviceRequest> requests; ///< their data pointers are invalid
    std::vector<std::vector<std::uint8_t>> data;

    platform::IOReturn mainPort() override { return mainPortError; }
    std::optional<platform::UsbMatching> serviceMatching(const char* className) override
    {
        return hasMatching ? std::optional(platform::UsbMatching{className, {}}) : std::nullopt;
    }
    platform::IOReturn getMatchingServices(
        platform::UsbMatching matching, std::unique_ptr<platform::UsbIterator>& services) override
    {
        asked = std::move(matching);
        if (servicesError == platform::kIOReturnSuccess) {
            services = iterator();
        }
        return servicesError;
    }
    std::unique_ptr<platform::UsbDeviceInterface> createDeviceInterface(
        const platform::UsbService& service) override
    {
        FakeUsbService& fake = *dynamic_cast<const Service&>(service).fake;
        return fake.interfaceError == platform::kIOReturnSuccess
            ? std::make_unique<Device>(*this, fake)
            : nullptr;
    }
    std::unique_ptr<platform::UsbInterfaceInterface> createInterfaceInterface(
        const platform::UsbService& service, platform::IOReturn& error) override
    {
        FakeUsbService& fake = *dynamic_cast<const Service&>(service).fake;
        error = fake.interfaceError;
        return error == platform::kIOReturnSuccess ? std::make_unique<Interface>(*this, fake)
                                                   : nullptr;
    }
    void sleepFor(std::chrono::milliseconds time) override
    {
        log.push_back("sleep " + std::to_string(time.count()));
    }

    /** An iterator over the devices. */
    std::unique_ptr<platform::UsbIterator> iterator()
    {
        return std::make_unique<Iterator>(*this, devices);
    }
    /** Returns a device to be opened. */
    std::unique_ptr<platform::UsbDeviceInterface> device(std::size_t index)
    {
        return std::make_unique<Device>(*this, devices[index]);
    }

private:
    class Service final : public platform::UsbService {
    public:
        Service(FakeUsb& usb, FakeUsbService& itsFake)
            : fake(&itsFake)
            , mUsb(&usb)
        {
        }
        ~Service() override { mUsb->log.emplace_back("release service"); }

        FakeUsbService* fake;

    private:
        FakeUsb* mUsb;
    };

    class Iterator final : public platform::UsbIterator {
    public:
        Iterator(FakeUsb& usb, std::vector<FakeUsbService>& services)
            : mUsb(&usb)
            , mServices(&services)
        {
        }
        std::unique_ptr<platform::UsbService> next() override
        {
            return mIndex < mServices->size()
                ? std::make_unique<Service>(*mUsb, (*mServices)[mIndex++])
                : nullptr;
        }
        void reset() override
        {
            mUsb->log.emplace_back("reset");
            mIndex = mUsb->goesWithReset ? mServices->size() : 0;
        }

    private:
        FakeUsb* mUsb;
        std::vector<FakeUsbService>* mServices;
        std::size_t mIndex = 0;
    };

    static platform::IOReturn nextOf(std::deque<platform::IOReturn>& errors)
    {
        if (errors.empty()) {
            return platform::kIOReturnSuccess;
        }
        const platform::IOReturn error = errors.front();
        errors.pop_front();
        return error;
    }

    class Device final : public platform::UsbDeviceInterface {
    public:
        Device(FakeUsb& usb, FakeUsbService& fake)
            : mUsb(&usb)
            , mFake(&fake)
        {
        }
        ~Device() override { mUsb->log.emplace_back("release device"); }

        platform::IOReturn getNumberOfConfigurations(std::uint8_t& count) override
        {
            count = static_cast<std::uint8_t>(mFake->configurations);
            return mFake->countError;
        }
        platform::IOReturn getConfigurationDescriptor(
            std::uint8_t index, platform::UsbConfigurationDescriptor& descriptor) override
        {
            descriptor = {1, static_cast<std::uint8_t>(index + mFake->configurationValue)};
            return mFake->descriptorError;
        }
        platform::IOReturn open() override
        {
            mUsb->log.emplace_back("open");
            return nextOf(mFake->openErrors);
        }
        platform::IOReturn deviceRequest(platform::UsbDeviceRequest& request) override
        {
            mUsb->log.emplace_back("request");
            mUsb->requests.push_back(request);
            mUsb->data.emplace_back(request.data, request.data + request.wLength);
            return mFake->requestError;
        }
        platform::IOReturn setConfiguration(std::uint8_t value) override
        {
            mUsb->log.push_back("configuration " + std::to_string(value));
            return mFake->configurationError;
        }
        platform::IOReturn createInterfaceIterator(
            std::unique_ptr<platform::UsbIterator>& interfaces) override
        {
            interfaces = std::make_unique<Iterator>(*mUsb, mFake->interfaces);
            return platform::kIOReturnSuccess;
        }

    private:
        FakeUsb* mUsb;
        FakeUsbService* mFake;
    };

    class Interface final : public platform::UsbInterfaceInterface {
    public:
        Interface(FakeUsb& usb, FakeUsbService& fake)
            : mUsb(&usb)
            , mFake(&fake)
        {
        }
        ~Interface() override { mUsb->log.emplace_back("release interface"); }

        platform::IOReturn open() override
        {
            mUsb->log.emplace_back("open interface");
            return nextOf(mFake->openErrors);
        }
        platform::IOReturn close() override
        {
            mUsb->log.emplace_back("close interface");
            return platform::kIOReturnSuccess;
        }

    private:
        FakeUsb* mUsb;
        FakeUsbService* mFake;
    };

    platform::ServiceScope<platform::Usb> mUsbScope{*this};
    platform::ServiceScope<platform::Sleep> mSleepScope{*this};
};
