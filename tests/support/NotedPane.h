// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#pragma once

#include "PreferencePane.h"

#include <QCheckBox>
#include <QStringList>
#include <QVBoxLayout>

#include <utility>

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

    /** Returns the calls since the last take(). */
    QStringList take() { return std::exchange(calls, {}); }
};

inline const QStringList kComing{QStringLiteral("will select"), QStringLiteral("did select")};
inline const QStringList kLeaving{QStringLiteral("will unselect"), QStringLiteral("did unselect")};

/** A pane that records its calls and sends the news that belongs to them. */
class NotedPane final : public platform::PreferencePane {
public:
    explicit NotedPane(PaneLife& life)
        : mLife(life)
    {
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
    QByteArray settings() const override { return mLife.settings; }
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
    bool hasDevice() const override { return mLife.hasDevice; }
    bool hasChanges() const override { return mLife.hasChanges; }
    void setButtonsShown(bool shown) override { note(shown ? "buttons shown" : "buttons hidden"); }

    void edit()
    {
        mLife.hasChanges = true;
        mayHaveChanged();
    }
    using PreferencePane::tell;

    std::function<void(const SelfCheck& check)> checkDone; ///< ends a self-check

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
        (new QVBoxLayout(view))->addWidget(new QCheckBox(QStringLiteral("Noted")));
        return view;
    }

    PaneLife& mLife;
};
