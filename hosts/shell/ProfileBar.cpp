// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "ProfileBar.h"

#include "ApplicationsDialog.h"
#include "FollowService.h"
#include "ImportDialog.h"
#include "LiteralText.h"
#include "MenuComboBox.h"
#include "ProfileNameDialog.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QHelpEvent>
#include <QLabel>
#include <QMenu>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <QStringList>
#include <QStyleOptionComboBox>
#include <QStylePainter>
#include <QToolButton>
#include <QToolTip>

#include <algorithm>
#include <utility>

using Profiles = platform::PaneProfiles;

namespace {

constexpr QLatin1String kProfileSuffix("plist");

/** Opens a dialog that is destroyed when it is closed. */
void openOnce(QDialog& dialog)
{
    dialog.setAttribute(Qt::WA_DeleteOnClose);
    dialog.open();
}

} // namespace

/** The list of the profiles. A long name is elided. */
class ProfileBar::List final : public platform::MenuComboBox {
public:
    explicit List(QWidget* parent)
        : MenuComboBox(parent)
    {
        constexpr int kColumns = 24;
        setMinimumContentsLength(kColumns);
        setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
    }

    /** Shows the names, and which of them is current; a first item stands for none. */
    void setProfiles(const std::vector<Profiles::Profile>& profiles, const QString& current)
    {
        QStringList names;
        for (const Profiles::Profile& profile : profiles) {
            names.append(profile.name);
        }
        const bool hasCurrent = names.contains(current);
        if (!hasCurrent) {
            names.prepend(QString());
        }
        if (names != mNames) { // otherwise, it may even be open
            mNames = names;
            clear();
            for (const QString& name : std::as_const(mNames)) {
                //: Item of the list of profiles, while the settings are those of none.
                addItem(name.isEmpty() ? ProfileBar::tr("None") : name, name);
                setItemData(
                    count() - 1, platform::literalToolTip(itemText(count() - 1)), Qt::ToolTipRole);
            }
        }
        const int index = hasCurrent ? static_cast<int>(mNames.indexOf(current)) : 0;
        if (index != currentIndex()) {
            setCurrentIndex(index);
        }
    }

    void showPopup() override
    {
        // Long names have room in the open list.
        const int widest = view()->sizeHintForColumn(0)
            + style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, view());
        view()->setMinimumWidth(std::min(widest, screen()->availableSize().width() / 2));
        QComboBox::showPopup();
    }

protected:
    void paintEvent(QPaintEvent* event) override
    {
        static_cast<void>(event);
        QStylePainter painter(this);
        QStyleOptionComboBox option;
        initStyleOption(&option);
        option.currentText =
            fontMetrics().elidedText(option.currentText, Qt::ElideRight, textWidth(option));
        painter.drawComplexControl(QStyle::CC_ComboBox, option);
        painter.drawControl(QStyle::CE_ComboBoxLabel, option);
    }

    bool event(QEvent* event) override
    {
        if (event->type() == QEvent::ToolTip) {
            QStyleOptionComboBox option;
            initStyleOption(&option);
            if (fontMetrics().horizontalAdvance(currentText()) > textWidth(option)) {
                const auto& help = static_cast<QHelpEvent&>(*event); // NOLINT(*-downcast): its type
                QToolTip::showText(help.globalPos(), platform::literalToolTip(currentText()), this);
                return true;
            }
        }
        return QComboBox::event(event);
    }

private:
    /** Room for the text in the closed list, in pixels. */
    int textWidth(const QStyleOptionComboBox& option) const
    {
        constexpr int kMargins = 4;
        return style()
                   ->subControlRect(
                       QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this)
                   .width()
            - kMargins;
    }

    QStringList mNames; ///< of the items; empty for none
};

ProfileBar::ProfileBar(platform::PreferencePane& pane, QWidget* shell)
    : QWidget(shell)
    , mPane(&pane)
    , mList(new List(this))
    , mMore(new QToolButton(this))
    , mFollow(new FollowService(this))
{
    //: Label of the list of profiles; a profile is a set of all settings of the tablet.
    auto* const label = new QLabel(tr("&Profile:"), this);
    label->setBuddy(mList);
    //: Describes the list of profiles.
    const QString description = tr("Each profile has all settings of the tablet for one kind of "
                                   "work.");
    mList->setToolTip(description);
    mList->setAccessibleDescription(description);
    connect(mList, qOverload<int>(&QComboBox::activated), this, [this](int index) {
        const QString name = mList->itemData(index).toString();
        if (!name.isEmpty()) {
            use(name);
        }
    });
    //: Button: saves the current settings as a profile, and asks for its name.
    auto* const saveAs = new QPushButton(tr("Save &as…"), this);
    saveAs->setToolTip(tr("Save the current settings as a profile"));
    saveAs->setAccessibleDescription(saveAs->toolTip());
    connect(saveAs, &QPushButton::clicked, this, &ProfileBar::askWhereToSave);
    makeMenu();

    auto* const row = new QHBoxLayout(this);
    // The pane's own margins are below.
    row->setContentsMargins(row->contentsMargins().left(), row->contentsMargins().top(),
        row->contentsMargins().right(), 0);
    row->addWidget(label);
    row->addWidget(mList);
    row->addWidget(saveAs);
    row->addWidget(mMore);
    row->addStretch(1);
    setTabOrder(mList, saveAs);
    hide();
}

void ProfileBar::makeMenu()
{
    //: Button beside the list of profiles: opens a menu with what else can be done with them.
    mMore->setText(tr("More"));
    mMore->setToolTip(tr("Manage the profiles"));
    mMore->setAccessibleDescription(mMore->toolTip());
    mMore->setPopupMode(QToolButton::InstantPopup);
    auto* const menu = new QMenu(mMore);
    menu->setToolTipsVisible(true);
    const auto add = [this, menu](const QString& text, void (ProfileBar::*act)()) {
        QAction* const action = menu->addAction(text);
        connect(action, &QAction::triggered, this, act);
        return action;
    };
    mOfCurrent = {
        //: Menu item: gives the current profile another name.
        add(tr("&Rename…"), &ProfileBar::askForNewName),
        //: Menu item: makes a copy of the current profile.
        add(tr("&Duplicate…"), &ProfileBar::askForCopysName),
        //: Menu item: deletes the current profile.
        add(tr("D&elete…"), &ProfileBar::askWhetherToDelete),
        //: Menu item: which applications the current profile is for.
        add(tr("&Applications…"), &ProfileBar::askForApplications),
    };
    menu->addSeparator();
    //: Menu item: takes a profile from a file.
    add(tr("&Import…"), &ProfileBar::askWhatToImport);
    //: Menu item: writes the current profile into a file.
    mOfCurrent.push_back(add(tr("E&xport…"), &ProfileBar::askWhereToExport));
    menu->addSeparator();
    mFollowAction = menu->addAction(QString());
    mFollowAction->setCheckable(true);
    connect(mFollowAction, &QAction::triggered, mFollow, &FollowService::set);
    connect(mFollow, &FollowService::changed, this, &ProfileBar::updateFollow);
    connect(mFollow, &FollowService::failed, this, &ProfileBar::tell);
    connect(menu, &QMenu::aboutToShow, mFollow, &FollowService::refresh);
    mMore->setMenu(menu);
    updateFollow();
}

void ProfileBar::updateFollow()
{
    const std::optional<bool> isOn = mFollow->isOn();
    mFollowAction->setEnabled(isOn.has_value());
    mFollowAction->setChecked(isOn.value_or(false));
    //: Menu item with a check mark: profiles change with the application in front.
    const QString name = tr("&Follow Applications");
    //: The same menu item, where the service that does it is on, but has ended.
    const QString nameOfEnded = tr("&Follow Applications (not running)");
    mFollowAction->setText(
        isOn.value_or(false) && !mFollow->fault().isEmpty() ? nameOfEnded : name);
    const QString text = mFollow->fault().isEmpty()
        //: Describes the menu item "Follow Applications".
        ? tr("Use a profile while one of its applications is in front")
        : mFollow->fault();
    mFollowAction->setToolTip(text);
    mFollowAction->setWhatsThis(text);
}

void ProfileBar::showDevice()
{
    Profiles* const there = profiles();
    if (there != nullptr) {
        there->setChangeHandler([this] { refresh(); });
        refresh();
    }
    setVisible(there != nullptr);
}

void ProfileBar::leavePane()
{
    if (Profiles* const there = mPane->profiles()) {
        there->setChangeHandler(nullptr);
    }
    mPane = nullptr;
}

Profiles* ProfileBar::profiles() const
{
    return mPane != nullptr && mPane->hasDevice() ? mPane->profiles() : nullptr;
}

std::vector<Profiles::Profile> ProfileBar::list() const
{
    const Profiles* const there = profiles();
    return there == nullptr ? std::vector<Profiles::Profile>() : there->list();
}

bool ProfileBar::has(const QString& name) const
{
    const std::vector<Profiles::Profile> all = list();
    return std::ranges::find(all, name, &Profiles::Profile::name) != all.end();
}

QString ProfileBar::current() const
{
    const Profiles* const there = profiles();
    return there == nullptr ? QString() : there->current();
}

void ProfileBar::refresh()
{
    const QString name = current();
    mList->setProfiles(list(), name);
    for (QAction* const action : mOfCurrent) {
        action->setEnabled(!name.isEmpty());
    }
}

// What the user can do ----------------------------------------------------------------------------

void ProfileBar::use(const QString& name)
{
    if (Profiles* const there = profiles()) {
        // The answer may come when this has gone.
        there->use(name, [bar = QPointer<ProfileBar>(this)](const QString& fault) {
            if (!bar.isNull()) {
                bar->refresh(); // after a failure, the list shows what is in use
                bar->tell(fault);
            }
        });
    }
}

void ProfileBar::askWhereToSave()
{
    const Act save = [](Profiles& profiles, const QString& name) { return profiles.save(name); };
    //: Title of the dialog.
    ProfileNameDialog& dialog = openNameDialog(tr("Save Profile"),
        //: Button: saves the settings under the name.
        tr("&Save"), current());
    connect(&dialog, &ProfileNameDialog::chosen, this, [this, &dialog, save](const QString& name) {
        if (!has(name)) {
            take(dialog, name, save);
            return;
        }
        //: %1 is the name of a profile.
        ask(tr("There is a profile “%1” already. Replace it with the current settings?").arg(name),
            //: Button: a profile that is there is replaced.
            tr("&Replace"), &dialog, [this, &dialog, name, save] { take(dialog, name, save); });
    });
}

void ProfileBar::askForNewName()
{
    const QString old = current();
    //: Title of the dialog.
    askForName(tr("Rename Profile"),
        //: Button: gives the profile the name.
        tr("&Rename"), old, [old](Profiles& profiles, const QString& newName) {
            return newName == old ? QString() : profiles.rename(old, newName);
        });
}

void ProfileBar::askForCopysName()
{
    const QString old = current();
    QString proposal;
    int number = 2;
    do {
        proposal = old + u' ' + QString::number(number++);
    } while (has(proposal));
    //: Title of the dialog.
    askForName(tr("Duplicate Profile"),
        //: Button: makes a copy of the profile with the name.
        tr("&Duplicate"), proposal, [old](Profiles& profiles, const QString& newName) {
            return profiles.duplicate(old, newName);
        });
}

void ProfileBar::askWhetherToDelete()
{
    const QString name = current();
    //: %1 is the name of a profile.
    ask(tr("Delete the profile “%1”? The tablet keeps its settings.").arg(name),
        //: Button: deletes a profile.
        tr("&Delete"), this, [this, name] {
            if (Profiles* const there = profiles()) {
                tell(there->remove(name));
            }
        });
}

void ProfileBar::askForApplications()
{
    const std::vector<Profiles::Profile> all = list();
    const auto found = std::ranges::find(all, current(), &Profiles::Profile::name);
    if (found == all.end()) {
        return;
    }
    auto* const dialog = new ApplicationsDialog(found->name, found->applications, this);
    connect(dialog, &QDialog::accepted, this, [this, dialog, name = found->name] {
        if (Profiles* const there = profiles()) {
            tell(there->setApplications(name, dialog->applications()));
        }
    });
    openOnce(*dialog);
}

void ProfileBar::askWhatToImport()
{
    //: Title of the dialog.
    auto* const dialog = new QFileDialog(this, tr("Choose a Profile to Import"));
    dialog->setFileMode(QFileDialog::ExistingFile);
    //: Kind of files in the dialog for choosing a profile.
    dialog->setNameFilters({tr("Profiles") + QStringLiteral(" (*.%1)").arg(kProfileSuffix),
        //: Kind of files in the dialog for choosing a profile.
        tr("All files") + QStringLiteral(" (*)")});
    connect(dialog, &QFileDialog::fileSelected, this, &ProfileBar::showImport);
    openOnce(*dialog);
}

void ProfileBar::showImport(const QString& file)
{
    Profiles* const there = profiles();
    if (there == nullptr) {
        return;
    }
    const Profiles::Import import = there->readImport(file);
    if (!import.error.isEmpty()) {
        tell(import.error);
        return;
    }
    auto* const dialog = new ImportDialog(import, this);
    connect(dialog, &QDialog::accepted, this, [this, dialog] { keepImport(*dialog); });
    openOnce(*dialog);
}

void ProfileBar::keepImport(ImportDialog& dialog)
{
    if (Profiles* const there = profiles()) {
        tell(there->keepImport(dialog.import(), dialog.allowed()));
    }
}

void ProfileBar::askWhereToExport()
{
    const QString name = current();
    //: Title of the dialog.
    auto* const dialog = new QFileDialog(this, tr("Export Profile"));
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setDefaultSuffix(kProfileSuffix);
    dialog->setNameFilters({tr("Profiles") + QStringLiteral(" (*.%1)").arg(kProfileSuffix)});
    dialog->selectFile(QString(name).replace(u'/', u'-') + u'.' + kProfileSuffix);
    connect(dialog, &QFileDialog::fileSelected, this, [this, name](const QString& file) {
        if (Profiles* const there = profiles()) {
            tell(there->exportTo(name, file));
        }
    });
    openOnce(*dialog);
}

// Dialogs -----------------------------------------------------------------------------------------

ProfileNameDialog& ProfileBar::openNameDialog(
    const QString& title, const QString& button, const QString& proposal)
{
    const auto faultOf = [this](const QString& name) {
        const Profiles* const there = profiles();
        return there == nullptr ? QString() : there->faultOf(name);
    };
    auto* const dialog = new ProfileNameDialog(title, button, proposal, faultOf, this);
    openOnce(*dialog);
    return *dialog;
}

void ProfileBar::askForName(
    const QString& title, const QString& button, const QString& proposal, const Act& act)
{
    ProfileNameDialog& dialog = openNameDialog(title, button, proposal);
    connect(&dialog, &ProfileNameDialog::chosen, this,
        [this, &dialog, act](const QString& name) { take(dialog, name, act); });
}

void ProfileBar::take(ProfileNameDialog& dialog, const QString& name, const Act& act)
{
    Profiles* const there = profiles();
    const QString fault = there == nullptr ? QString() : act(*there, name);
    if (fault.isEmpty()) {
        dialog.accept();
    } else {
        dialog.showFault(fault);
    }
}

void ProfileBar::ask(
    const QString& text, const QString& button, QWidget* parent, const std::function<void()>& act)
{
    auto* const question =
        new QMessageBox(QMessageBox::Question, window()->windowTitle(), text, {}, parent);
    question->setTextFormat(Qt::PlainText);
    const QPushButton* const yes = question->addButton(button, QMessageBox::DestructiveRole);
    //: Button of a question: does nothing.
    QPushButton* const no = question->addButton(tr("&Cancel"), QMessageBox::RejectRole);
    question->setDefaultButton(no);
    connect(yes, &QPushButton::clicked, this, act);
    openOnce(*question);
}

void ProfileBar::tell(const QString& fault)
{
    if (fault.isEmpty() || !isVisible()) {
        return;
    }
    auto* const message = new QMessageBox(
        QMessageBox::Warning, window()->windowTitle(), fault, QMessageBox::Ok, this);
    message->setTextFormat(Qt::PlainText);
    openOnce(*message);
}
