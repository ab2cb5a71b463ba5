// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Bundle.h"

#include <QObject>
#include <QPointer>
#include <QString>
#include <QWidget>
#include <QtPlugin>

#include <cstdint>
#include <functional>
#include <memory>
#include <utility>

namespace platform {

/**
 * A pane of settings that a host shows in a window of its own. The host calls, on the main thread:
 * initWithBundle once; loadMainView once, whose widget it puts into its window; then, for every
 * showing, willSelect before and didSelect after the pane appears, willUnselect before and
 * didUnselect after it goes.
 *
 * The header is all that a host needs: host and pane may be built apart and share no other code.
 */
class PreferencePane : public QObject {
public:
    /** Takes the module's bundle. @return the pane, or null when it cannot work */
    virtual PreferencePane* initWithBundle(const Bundle& bundle)
    {
        mBundle = bundle;
        return this;
    }

    /** Makes the main view. It belongs to whoever gives it a parent. */
    virtual QWidget* loadMainView()
    {
        if (mMainView == nullptr) {
            mMainView = makeMainView();
            mainViewDidLoad();
        }
        return mMainView;
    }

    /** The main view; null before it is loaded and after it is gone. */
    virtual QWidget* mainView() const { return mMainView; }

    virtual void mainViewDidLoad() { }
    virtual void willSelect() { }
    virtual void didSelect() { }
    virtual void willUnselect() { }
    virtual void didUnselect() { }

    // For what a host puts around the pane:

    /** What a pane can tell its host. */
    enum class News : std::uint8_t {
        ChangeTaken, ///< the device's driver has taken the last change
        ChangeNotTaken, ///< it has not
        Loaded, ///< the settings have been read
        NotLoaded, ///< they could not be; the text says why
        Saved, ///< the settings have been made permanent
        NotSaved, ///< they could not be; the text says why
        DeviceMayHaveChanged, ///< a driver has come, or has another device than before
        ChangedByItself, ///< the settings follow the displays and have not been sent since
    };
    using NewsHandler = std::function<void(News news, const QString& text)>;

    /** Takes what is told, on the main thread, when there is news. */
    void setNewsHandler(NewsHandler handler) { mNewsHandler = std::move(handler); }

    /** What the driver says when it is asked for its device. */
    enum class Device : std::uint8_t {
        Unknown, ///< it does not answer
        Same, ///< what the pane shows, be it that there is none
        Other, ///< the pane has to be left and shown anew
    };
    /**
     * Asks the driver for its device. After Other, the pane takes the answer for its next showing
     * instead of asking again, and sends the driver nothing before that.
     */
    virtual Device checkDevice() { return Device::Same; }

    /** Whether the pane shows the settings of a device. */
    virtual bool hasDevice() const { return true; }

    /** Sends all settings to the driver, changed or not. */
    virtual void send() { }

    /** Makes the settings permanent. */
    virtual void save() { }
    /**
     * Goes back to the settings that were saved last. The controls may keep showing what the user
     * has given up, until the pane is shown anew.
     */
    virtual void cancel() { }
    /** Whether there is something that save() would make permanent and cancel() give up. */
    virtual bool hasChanges() const { return false; }
    /** Takes what is called, on the main thread, each time hasChanges() may have another answer. */
    void setChangeHandler(std::function<void()> handler) { mChangeHandler = std::move(handler); }
    /**
     * Whether the pane shows buttons of its own for save() and cancel(), from the next showing on.
     * It does not unless told.
     */
    virtual void setButtonsShown(bool shown) { static_cast<void>(shown); }

protected:
    const Bundle& bundle() const { return mBundle; }

    /** Tells the host that hasChanges() may have another answer. */
    void mayHaveChanged() const
    {
        if (mChangeHandler) {
            mChangeHandler();
        }
    }

    void tell(News news, const QString& text = {}) const
    {
        if (mNewsHandler) {
            mNewsHandler(news, text);
        }
    }

private:
    /** Builds the main view from the interface file. */
    virtual QWidget* makeMainView() = 0;

    Bundle mBundle;
    QPointer<QWidget> mMainView;
    std::function<void()> mChangeHandler;
    NewsHandler mNewsHandler;
};

/** What a module's plug-in is: a maker of panes. */
class PreferencePanePlugin {
public:
    virtual ~PreferencePanePlugin() = default;

    virtual std::unique_ptr<PreferencePane> makePane() const = 0;
};

} // namespace platform

Q_DECLARE_INTERFACE(platform::PreferencePanePlugin, "org.quorvia.PreferencePanePlugin/3")
