// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "PreferencePane.h"

#include <QCheckBox>
#include <QStringList>
#include <QTabWidget>
#include <QVBoxLayout>

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <utility>
#include <vector>

/** What a host has done with its pane; outlives the pane. */
struct PaneLife {
    QStringList calls;
    QStringList views; ///< when the main view was hidden and shown in a visible window
    bool hasChanges = false;
    bool canSave = true;
    bool canLoad = true;
    bool hasDevice = true;
    QByteArray settings; ///< all of them
    QByteArray savedAs; ///< what saving makes of them; empty if it leaves them
    platform::PreferencePane::Device device = platform::PreferencePane::Device::Same;
    platform::PreferencePane::SelfCheck selfCheck; ///< what one finds
    QString deviceID;
    int display = 0; ///< the chosen one
    bool hasTabs = false; ///< in its main view
    bool hasProfiles = false;
    std::vector<platform::PaneProfiles::Profile> profiles;
    QString profile; ///< the current one
    QString profileFault; ///< why nothing can be done with profiles; empty if it can
    platform::PaneProfiles::Import import; ///< what is in any file

    /** Returns the calls since the last take(). */
    QStringList take() { return std::exchange(calls, {}); }
};

inline const QStringList kComing{QStringLiteral("will select"), QStringLiteral("did select")};
inline const QStringList kLeaving{QStringLiteral("will unselect"), QStringLiteral("did unselect")};

/** Profiles that record their calls. They cannot be called "bad". */
class NotedProfiles final : public platform::PaneProfiles {
public:
    explicit NotedProfiles(PaneLife& life)
        : mLife(life)
    {
    }

    std::vector<Profile> list() const override { return mLife.profiles; }
    QString current() const override { return mLife.profile; }
    void use(const QString& name, Done done) override
    {
        note({QStringLiteral("use"), name});
        useDone = [this, name, done](const QString& fault) {
            if (fault.isEmpty()) {
                mLife.profile = name;
                change();
            }
            done(fault);
        };
    }
    QString save(const QString& name) override
    {
        return act({QStringLiteral("save"), name}, [this, &name] {
            if (find(name) == mLife.profiles.end()) {
                mLife.profiles.push_back({name, {}});
            }
            mLife.profile = name;
        });
    }
    QString rename(const QString& name, const QString& newName) override
    {
        return act({QStringLiteral("rename"), name, newName}, [&] {
            find(name)->name = newName;
            mLife.profile = newName;
        });
    }
    QString duplicate(const QString& name, const QString& newName) override
    {
        return act({QStringLiteral("duplicate"), name, newName}, [&] {
            mLife.profiles.push_back({newName, find(name)->applications});
        });
    }
    QString remove(const QString& name) override
    {
        return act({QStringLiteral("remove"), name}, [&] {
            mLife.profiles.erase(find(name));
            mLife.profile.clear();
        });
    }
    QString setApplications(const QString& name, const QStringList& applications) override
    {
        return act(QStringList{QStringLiteral("set applications"), name} + applications,
            [&] { find(name)->applications = applications; });
    }
    QString exportTo(const QString& name, const QString& file) override
    {
        return act({QStringLiteral("export"), name, file}, [] {});
    }
    Import readImport(const QString& file) override
    {
        note({QStringLiteral("read"), file});
        return mLife.import;
    }
    QString keepImport(const Import& import, const std::vector<bool>& allowed) override
    {
        QString flags;
        for (const bool isAllowed : allowed) {
            flags += isAllowed ? u'+' : u'-';
        }
        EXPECT_EQ(import.contents, mLife.import.contents);
        return act({QStringLiteral("import"), import.name, flags}, [&] {
            mLife.profiles.push_back({import.name, import.applications});
        });
    }
    QString faultOf(const QString& name) const override
    {
        return name == QLatin1String("bad") ? QStringLiteral("That is no name.") : QString();
    }
    void setChangeHandler(std::function<void()> handler) override { mChanged = std::move(handler); }

    /** Tells that the list or the current profile has changed. */
    void change() const
    {
        if (mChanged) {
            mChanged();
        }
    }
    bool isListenedTo() const { return mChanged != nullptr; }

    Done useDone; ///< ends the last use()

private:
    std::vector<Profile>::iterator find(const QString& name)
    {
        return std::ranges::find(mLife.profiles, name, &Profile::name);
    }
    void note(const QStringList& words) { mLife.calls.append(words.join(u' ')); }
    QString act(const QStringList& words, const std::function<void()>& how)
    {
        note(words);
        if (mLife.profileFault.isEmpty()) {
            how();
            change();
        }
        return mLife.profileFault;
    }

    PaneLife& mLife;
    std::function<void()> mChanged;
};

/** A pane that records its calls and sends the news that belongs to them. */
class NotedPane final : public platform::PreferencePane {
public:
    explicit NotedPane(PaneLife& life)
        : noted(life)
        , mLife(life)
    {
    }
    ~NotedPane() override
    {
        // Nobody hears what it tells now, or asks it anything.
        mIsEnding = true;
        EXPECT_FALSE(mLife.hasProfiles && noted.isListenedTo());
        tell(News::ChangeTaken);
        mayHaveChanged();
    }

    void willSelect() override
    {
        note("will select");
        if (mLife.hasDevice) {
            load();
        }
    }
    void didSelect() override { note("did select"); }
    void willUnselect() override
    {
        note("will unselect");
        write();
    }
    void didUnselect() override { note("did unselect"); }
    void save() override
    {
        note("save");
        if (!mLife.savedAs.isEmpty()) {
            mLife.settings = mLife.savedAs;
        }
        write();
        mayHaveChanged();
    }
    void cancel() override
    {
        note("cancel");
        load();
        mLife.hasChanges = false;
        mayHaveChanged();
    }
    void send() override { note("send"); }
    void checkSelf(std::function<void(const SelfCheck& check)> done) override
    {
        note("check self");
        checkDone = std::move(done);
    }
    QString deviceID() const override { return mLife.deviceID; }
    int chosenDisplay() const override { return mLife.display; }
    void chooseDisplay(int number) override
    {
        note("choose display");
        mLife.display = number;
        tell(News::DisplayChosen);
    }
    Device checkDevice() override
    {
        note("check");
        return mLife.device;
    }
    QByteArray settings() const override
    {
        EXPECT_FALSE(mIsEnding);
        return mLife.settings;
    }
    void setSettings(const QByteArray& settings) override
    {
        note(("set " + settings.toStdString()).c_str());
        mLife.settings = settings;
        mayHaveChanged();
    }
    QString nameOfEdit(const QByteArray& before, const QByteArray& after) const override
    {
        // The letter is the setting, the number its value.
        return QString::fromLatin1(after.left(1) == before.left(1) ? after.left(1) : after);
    }
    bool hasDevice() const override
    {
        EXPECT_FALSE(mIsEnding);
        return mLife.hasDevice;
    }
    bool hasChanges() const override { return mLife.hasChanges; }
    platform::PaneProfiles* profiles() override { return mLife.hasProfiles ? &noted : nullptr; }
    void setButtonsShown(bool shown) override { note(shown ? "buttons shown" : "buttons hidden"); }

    void edit()
    {
        mLife.hasChanges = true;
        mayHaveChanged();
    }
    using PreferencePane::tell;

    std::function<void(const SelfCheck& check)> checkDone; ///< ends a self-check
    NotedProfiles noted;

private:
    void note(const char* call) { mLife.calls.append(QString::fromLatin1(call)); }
    void load()
    {
        tell(mLife.canLoad ? News::Loaded : News::NotLoaded,
            mLife.canLoad ? QString() : QStringLiteral("no such file"));
    }
    void write()
    {
        mLife.hasChanges = mLife.hasChanges && !mLife.canSave;
        tell(mLife.canSave ? News::Saved : News::NotSaved,
            mLife.canSave ? QString() : QStringLiteral("the disk is full"));
    }
    /** A view that records when it is hidden and shown in a visible window. */
    class View final : public QWidget {
    public:
        explicit View(PaneLife& life)
            : mLife(life)
        {
        }

    protected:
        void hideEvent(QHideEvent*) override { note("hidden"); }
        void showEvent(QShowEvent*) override { note("shown"); }

    private:
        void note(const char* event)
        {
            if (window()->isVisible()) {
                mLife.views.append(QString::fromLatin1(event) + QStringLiteral(" after ")
                    + (mLife.calls.isEmpty() ? QString() : mLife.calls.constLast()));
            }
        }

        PaneLife& mLife;
    };

    QWidget* makeMainView() override
    {
        auto* const view = new View(mLife);
        view->setWindowTitle(QStringLiteral("Noted"));
        view->resize(300, 200);
        auto* const layout = new QVBoxLayout(view);
        auto* const box = new QCheckBox(QStringLiteral("Noted"));
        if (mLife.hasTabs) {
            auto* const tabs = new QTabWidget;
            tabs->addTab(box, QStringLiteral("Page"));
            layout->addWidget(tabs);
        } else {
            layout->addWidget(box);
        }
        return view;
    }

    PaneLife& mLife;
    bool mIsEnding = false;
};
