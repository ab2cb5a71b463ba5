// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "ApplicationChooser.h"

#include "Accessible.h"
#include "HomeFolder.h"
#include "LiteralText.h"

#include <QAbstractListModel>
#include <QDialogButtonBox>
#include <QDir>
#include <QFile>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPointer>
#include <QPushButton>
#include <QSaveFile>
#include <QSortFilterProxyModel>
#include <QStyledItemDelegate>
#include <QVBoxLayout>

#include <algorithm>
#include <array>
#include <optional>
#include <utility>
#include <vector>

namespace platform {

namespace {

// The applications that were chosen last: their paths, one to a line, the latest first.

constexpr int kMostRecent = 8;

QString recentFile()
{
    return userStateFolder() + QStringLiteral("/qvtblt/applications");
}

QStringList recentPaths()
{
    constexpr qint64 kMostBytes = 64L * 1024;
    QFile file(recentFile());
    if (!file.open(QIODevice::ReadOnly)) {
        return {};
    }
    QStringList paths = QString::fromUtf8(file.read(kMostBytes)).split(u'\n', Qt::SkipEmptyParts);
    paths.removeDuplicates();
    return paths.mid(0, kMostRecent);
}

/** Without success, the order stays as it is. */
void rememberPath(const QString& path)
{
    QStringList paths = recentPaths();
    paths.removeAll(path);
    paths.prepend(path);
    const QString name = recentFile();
    QSaveFile file(name);
    if (QDir().mkpath(name.section(u'/', 0, -2)) && file.open(QIODevice::WriteOnly)) {
        file.write(paths.mid(0, kMostRecent).join(u'\n').toUtf8() + '\n');
        file.commit();
    }
}

/** All applications to choose from: those that were chosen last come first. */
std::vector<Application> applicationsInOrder()
{
    std::vector<Application> applications = installedApplications();
    auto next = applications.begin();
    const QStringList recent = recentPaths();
    for (const QString& path : recent) {
        const auto found = std::find_if(next, applications.end(),
            [&path](const Application& application) { return application.path == path; });
        if (found != applications.end()) {
            std::rotate(next, found, found + 1);
            ++next;
        } else if (QFile::exists(path)) {
            next = applications.insert(next, applicationAt(path)) + 1;
        }
    }
    return applications;
}

constexpr QSize kIconSize{32, 32};

/** Draws a row with room for an icon, whatever icon it has. */
class RowDelegate final : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        constexpr int kGap = 4; // above and below
        return QStyledItemDelegate::sizeHint(option, index) + QSize(0, 2 * kGap);
    }

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        option->features |= QStyleOptionViewItem::HasDecoration;
        option->decorationSize = kIconSize;
    }
};

} // namespace

class ApplicationChooser::Model final : public QAbstractListModel {
public:
    enum Role { Path = Qt::UserRole, Words };

    Model(const OpenPanel::Refusal& refusal, QObject* parent)
        : QAbstractListModel(parent)
    {
        std::vector<Application> applications = applicationsInOrder();
        mRows.reserve(applications.size());
        for (Application& application : applications) {
            QString fault = refusal(application.path);
            mRows.push_back({std::move(application), std::move(fault)});
        }
    }

    int rowCount(const QModelIndex& parent) const override
    {
        return parent.isValid() ? 0 : static_cast<int>(mRows.size());
    }

    QVariant data(const QModelIndex& index, int role) const override
    {
        if (!index.isValid()) {
            return {};
        }
        const Row& row = mRows[static_cast<std::size_t>(index.row())];
        const QString& detail = row.fault.isEmpty() ? row.application.detail : row.fault;
        switch (role) {
        case Qt::DisplayRole:
            return row.application.name + QChar(QChar::LineSeparator) + detail;
        case Qt::AccessibleTextRole:
            return detail.isEmpty() ? row.application.name
                                    : row.application.name + QStringLiteral(", ") + detail;
        case Qt::DecorationRole:
            // Views ask for what they draw: only rows on screen have an icon.
            if (!row.icon) {
                row.icon = iconOf(row.application);
            }
            return *row.icon;
        case Qt::ToolTipRole:
            return literalToolTip(row.application.path);
        case Path:
            return row.application.path;
        case Words:
            return row.application.words;
        default:
            return {};
        }
    }

    Qt::ItemFlags flags(const QModelIndex& index) const override
    {
        const bool isUsable =
            index.isValid() && mRows[static_cast<std::size_t>(index.row())].fault.isEmpty();
        return isUsable ? QAbstractListModel::flags(index) : Qt::NoItemFlags;
    }

private:
    struct Row {
        Application application;
        QString fault; ///< why it cannot be used; empty if it can
        mutable std::optional<QIcon> icon{}; ///< none until it is drawn
    };

    std::vector<Row> mRows;
};

/** The rows that contain every word of a text. */
class ApplicationChooser::Search final : public QSortFilterProxyModel {
public:
    using QSortFilterProxyModel::QSortFilterProxyModel;

    void setText(const QString& text)
    {
        mWords = text.toLower().split(u' ', Qt::SkipEmptyParts);
        invalidateFilter();
    }

protected:
    bool filterAcceptsRow(int row, const QModelIndex& parent) const override
    {
        const QString words = sourceModel()->index(row, 0, parent).data(Model::Words).toString();
        return std::ranges::all_of(
            mWords, [&words](const QString& word) { return words.contains(word); });
    }

private:
    QStringList mWords;
};

ApplicationChooser::ApplicationChooser(
    QWidget* parent, const OpenPanel::Refusal& refusal, OtherFile otherFile)
    : QDialog(parent)
    , mOtherFile(std::move(otherFile))
    , mSearch(new Search(this))
    , mLine(new QLineEdit)
    , mList(new QListView)
    , mNothing(new NoticeLabel)
{
    //: Title of the dialog.
    setWindowTitle(tr("Choose an application"));
    mSearch->setSourceModel(new Model(refusal, this));

    //: Shown in the empty search field above the list of applications.
    mLine->setPlaceholderText(tr("Search"));
    mLine->setAccessibleName(tr("Search for an application"));
    mLine->setClearButtonEnabled(true);
    mLine->installEventFilter(this);
    connect(mLine, &QLineEdit::textChanged, this, &ApplicationChooser::search);

    mList->setAccessibleName(tr("Applications"));
    mList->setUniformItemSizes(true); // otherwise each row is laid out, and its icon loaded
    mList->setIconSize(kIconSize);
    mList->setItemDelegate(new RowDelegate(mList));
    mList->setTextElideMode(Qt::ElideRight);
    mList->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    mList->setModel(mSearch);
    connect(mList->selectionModel(), &QItemSelectionModel::currentChanged, this,
        &ApplicationChooser::updateButton);
    connect(mList, &QListView::doubleClicked, this, &ApplicationChooser::chooseCurrent);

    mNothing->setText(tr("No application matches the search."));
    mNothing->setAlignment(Qt::AlignCenter);
    mNothing->hide();

    auto* const buttons = new QDialogButtonBox;
    //: Button: choose a file that is not in the list of applications.
    auto* const other = buttons->addButton(tr("&Other File…"), QDialogButtonBox::ActionRole);
    other->setObjectName(QStringLiteral("otherFile"));
    connect(other, &QPushButton::clicked, this, &ApplicationChooser::chooseOther);
    //: Button: leaves the dialog without choosing an application.
    buttons->addButton(tr("&Cancel"), QDialogButtonBox::RejectRole);
    //: Button: takes the selected application.
    mChoose = buttons->addButton(tr("C&hoose"), QDialogButtonBox::AcceptRole);
    connect(buttons, &QDialogButtonBox::accepted, this, &ApplicationChooser::chooseCurrent);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(mLine);
    layout->addWidget(mList, 1);
    layout->addWidget(mNothing);
    layout->addWidget(buttons);
    search({});
    const int line = fontMetrics().height();
    resize(line * 30, line * 32);
}

void ApplicationChooser::search(const QString& text)
{
    mSearch->setText(text);
    // Return takes the first one that can be used.
    QModelIndex first;
    for (int row = 0; row < mSearch->rowCount() && !first.isValid(); ++row) {
        const QModelIndex index = mSearch->index(row, 0);
        if ((index.flags() & Qt::ItemIsEnabled) != 0) {
            first = index;
        }
    }
    mList->setCurrentIndex(first);
    mNothing->setVisible(mSearch->rowCount() == 0 && !text.isEmpty());
    updateButton();
}

void ApplicationChooser::updateButton()
{
    if (mChoose != nullptr) {
        mChoose->setEnabled(mList->currentIndex().isValid());
    }
}

void ApplicationChooser::chooseCurrent()
{
    const QModelIndex current = mList->currentIndex();
    if (current.isValid()) {
        choose(current.data(Model::Path).toString());
    }
}

void ApplicationChooser::chooseOther()
{
    // The dialog may be destroyed before the user is done.
    const QPointer<ApplicationChooser> self(this);
    const std::optional<QString> path = mOtherFile(this);
    if (path && !self.isNull()) {
        choose(*path);
    }
}

void ApplicationChooser::choose(const QString& path)
{
    mChosen = path;
    rememberPath(path);
    accept();
}

bool ApplicationChooser::eventFilter(QObject* watched, QEvent* event)
{
    // In the search field, these keys move through the list.
    constexpr std::array<int, 4> kMoves{Qt::Key_Up, Qt::Key_Down, Qt::Key_PageUp, Qt::Key_PageDown};
    if (watched == mLine && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key(); // NOLINT(*-downcast): its type
        if (std::ranges::find(kMoves, key) != kMoves.end()) {
            QCoreApplication::sendEvent(mList, event);
            return true;
        }
    }
    return QDialog::eventFilter(watched, event);
}

} // namespace platform
