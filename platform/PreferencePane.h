// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Bundle.h"

#include <QByteArray>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QStringList>
#include <QWidget>
#include <QtPlugin>

#include <cstdint>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace platform {

/**
 * Sets of settings for different kinds of work that a pane keeps for its device: its profiles.
 * Their names are unique. A function that returns a text returns why it has failed, for the user;
 * empty on success, so that a host needs no library for results.
 */
class PaneProfiles {
public:
    struct Profile {
        QString name;
        /** What it is for: the names of desktop entries, without ".desktop". */
        QStringList applications;
    };

    /** A button that would start an application. */
    struct Start {
        QString button;
        QString path;
    };

    /** The contents of a file from somebody else, and what they would change. */
    struct Import {
        QString error; ///< why the file cannot be used; empty if it can
        QString name; ///< what the profile will be called
        QStringList changes; ///< what it would change
        QStringList leftOut; ///< what does not fit the device
        QStringList applications; ///< what it is for
        std::vector<Start> starts; ///< have no action unless allowed
        std::shared_ptr<const void> contents; ///< for the pane
    };

    /** Receives the reason for a failure; empty on success. */
    using Done = std::function<void(const QString& error)>;

    virtual ~PaneProfiles() = default;

    /** In the order in which they are to be shown. */
    virtual std::vector<Profile> list() const = 0;
    /** The one that was used last; empty if there is none. */
    virtual QString current() const = 0;
    /** Applies a profile's settings to the device. @param done is called then, perhaps at once */
    virtual void use(const QString& name, Done done) = 0;

    /** Saves the current settings as a profile, replacing one of that name. */
    virtual QString save(const QString& name) = 0;
    /** Renames a profile. */
    virtual QString rename(const QString& name, const QString& newName) = 0;
    /** Copies a profile under a new name. */
    virtual QString duplicate(const QString& name, const QString& newName) = 0;
    /** Deletes a profile. */
    virtual QString remove(const QString& name) = 0;
    /** Sets what a profile is for. */
    virtual QString setApplications(const QString& name, const QStringList& applications) = 0;

    /** Writes a profile into a file for others. */
    virtual QString exportTo(const QString& name, const QString& file) = 0;
    /** Reads a file once, and keeps nothing of it. */
    virtual Import readImport(const QString& file) = 0;
    /**
     * Keeps what was read as a profile.
     *
     * @param allowed for each of its starts, whether the button may start the application
     */
    virtual QString keepImport(const Import& import, const std::vector<bool>& allowed) = 0;

    /** Why a text cannot be a profile's name; empty if it can. */
    virtual QString faultOf(const QString& name) const = 0;

    /** Sets the function to call, on the main thread, when the list or current() has changed. */
    virtual void setChangeHandler(std::function<void()> handler) = 0;
};

/**
 * A settings pane that a host shows in its window. The host calls, on the main thread:
 * initWithBundle once; loadMainView once, and puts its widget into the window; then, for every
 * showing, willSelect before and didSelect after the pane appears, willUnselect before and
 * didUnselect after it disappears.
 *
 * A host needs only this header: host and pane can be built separately and share no other code.
 */
class PreferencePane : public QObject {
public:
    /** Sets the module's bundle. @return the pane, or null if it cannot work */
    virtual PreferencePane* initWithBundle(const Bundle& bundle)
    {
        mBundle = bundle;
        return this;
    }

    /** Creates the main view. The caller owns it by giving it a parent. */
    virtual QWidget* loadMainView()
    {
        if (mMainView == nullptr) {
            mMainView = makeMainView();
            mainViewDidLoad();
        }
        return mMainView;
    }

    /** The main view; null before it is loaded and after it is destroyed. */
    virtual QWidget* mainView() const { return mMainView; }

    virtual void mainViewDidLoad() { }
    virtual void willSelect() { }
    virtual void didSelect() { }
    virtual void willUnselect() { }
    virtual void didUnselect() { }

    // For the host's controls around the pane:

    /** What a pane reports to its host. */
    enum class News : std::uint8_t {
        ChangeTaken, ///< the device's driver has accepted the last change
        ChangeNotTaken, ///< it has not
        Loaded, ///< the settings have been read
        NotLoaded, ///< they could not be; the text says why
        Saved, ///< the settings have been saved
        NotSaved, ///< they could not be; the text says why
        DeviceMayHaveChanged, ///< a driver has appeared, or has another device than before
        ChangedByItself, ///< the settings follow the displays and have not been sent since
        DisplayChosen, ///< a display has been chosen for the device, perhaps the same again
        DisplaysChanged, ///< displays were connected, disconnected or moved
        SettingsReplaced, ///< by those of a profile: there is no way back to earlier ones
    };
    using NewsHandler = std::function<void(News news, const QString& text)>;

    /** Sets the function to call, on the main thread, when there is news. */
    void setNewsHandler(NewsHandler handler) { mNewsHandler = std::move(handler); }

    /** The driver's answer to the query for its device. */
    enum class Device : std::uint8_t {
        Unknown, ///< it does not answer
        Same, ///< as shown by the pane, even if there is none
        Other, ///< the pane has to be left and shown again
    };
    /**
     * Asks the driver for its device. After Other, the pane uses the answer for its next showing
     * instead of asking again, and sends nothing to the driver until then.
     */
    virtual Device checkDevice() { return Device::Same; }

    /** One stage of a self-check. */
    struct CheckedStage {
        enum class Status : std::uint8_t { Ok, Problem, NotChecked };

        QString id; ///< the same in every version and language
        Status status;
        QString text; ///< what was found, in the user's language
        QString remedy; ///< what to do about it; empty if nothing is to be done
    };
    struct SelfCheck {
        std::vector<CheckedStage> stages;
        QString report; ///< for others: in English, and without anything that is the user's own
    };
    /**
     * Checks everything between the device and the pane, and may start the driver. Returns at once
     * and calls the function later, on the main thread, unless the pane is destroyed before. By
     * default, there is nothing to check.
     */
    // NOLINTNEXTLINE(performance-unnecessary-value-param): others keep it
    virtual void checkSelf(std::function<void(const SelfCheck& check)> done) { done({}); }

    /** Whether the pane shows the settings of a device. */
    virtual bool hasDevice() const { return true; }

    /** What the device's settings are kept under; empty without a device. */
    virtual QString deviceID() const { return {}; }

    /** The number of the display that the device is mapped to, from 1; 0 for all of them. */
    virtual int chosenDisplay() const { return 0; }
    /** Maps the device to a display, as if it had been chosen in the pane. */
    virtual void chooseDisplay(int number) { static_cast<void>(number); }

    /** Sends all settings to the driver, changed or not. */
    virtual void send() { }

    /** Saves the settings. */
    virtual void save() { }
    /**
     * Goes back to the saved settings. The controls may still show the discarded choices until the
     * pane is shown again.
     */
    virtual void cancel() { }
    /** Whether there is anything to save() or cancel(). */
    virtual bool hasChanges() const { return false; }
    /**
     * All settings that the user can edit, in a form of the pane's own; equal ones have equal
     * bytes. Empty if there are none, and while an edit is not yet finished.
     */
    virtual QByteArray settings() const { return {}; }
    /**
     * Goes back or forth to what settings() once returned for the same device: sends these
     * settings, once, and shows them.
     */
    virtual void setSettings(const QByteArray& settings) { static_cast<void>(settings); }
    /** The name of the edit between two settings(), for a menu, such as "key 3". */
    virtual QString nameOfEdit(const QByteArray& before, const QByteArray& after) const
    {
        static_cast<void>(before);
        static_cast<void>(after);
        return {};
    }
    /** The device's profiles; null if the pane has none. */
    virtual PaneProfiles* profiles() { return nullptr; }

    /**
     * Sets the function to call, on the main thread, when the result of hasChanges() or settings()
     * may have changed.
     */
    void setChangeHandler(std::function<void()> handler) { mChangeHandler = std::move(handler); }
    /**
     * Sets whether the pane shows its own buttons for save() and cancel(), from the next showing
     * on. By default, it does not.
     */
    virtual void setButtonsShown(bool shown) { static_cast<void>(shown); }

protected:
    const Bundle& bundle() const { return mBundle; }

    /** Notifies the host that the result of hasChanges() or settings() may have changed. */
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
    /** Creates the main view from the interface file. */
    virtual QWidget* makeMainView() = 0;

    Bundle mBundle;
    QPointer<QWidget> mMainView;
    std::function<void()> mChangeHandler;
    NewsHandler mNewsHandler;
};

/** The interface of a module's plug-in, which creates panes. */
class PreferencePanePlugin {
public:
    virtual ~PreferencePanePlugin() = default;

    virtual std::unique_ptr<PreferencePane> makePane() const = 0;
};

} // namespace platform

/** The ID of the plug-in's interface, with its version. */
// NOLINTNEXTLINE(*-macro-usage): moc reads it
#define QVTBLT_PLUGIN_IID "org.quorvia.PreferencePanePlugin/5"
Q_DECLARE_INTERFACE(platform::PreferencePanePlugin, QVTBLT_PLUGIN_IID)
