// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "QVKeyComboBox.h"

#include "ActionText.h"
#include "LiteralText.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QListView>
#include <QStyleOptionComboBox>
#include <QStylePainter>
#include <QStyledItemDelegate>
#include <QToolTip>

#include <utility>

namespace {

/** The initial text of an item; empty without an item. */
QString textAtFirst(int item)
{
    const auto index = static_cast<std::size_t>(item); // a negative one is too large
    return index < kActionCount ? actionText(kActions.at(index)) : QString();
}

/** An item's text as drawn: on one line, and never empty. */
QString drawnText(const QString& text, int item)
{
    QString drawn = text.isEmpty() ? textAtFirst(item) : text;
    for (QChar& character : drawn) {
        if (character.category() == QChar::Other_Control) {
            character = QChar::ReplacementCharacter;
        }
    }
    return drawn;
}

/** Where a text is elided that does not fit: the end of a path names the program. */
Qt::TextElideMode elideModeOf(int item)
{
    return item == QVKeyComboBox::Application ? Qt::ElideLeft : Qt::ElideMiddle;
}

/** A tooltip with the name of an application above its path, as far as they are known. */
QString toolTipOf(const QString& name, const QString& path)
{
    return name.isEmpty()
        ? platform::literalToolTip(path)
        : QStringLiteral("<b>%1</b><br>%2").arg(name.toHtmlEscaped(), path.toHtmlEscaped());
}

/** Draws the items of the open list. */
class ItemDelegate final : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        // Room to hit a row with a pen.
        return QStyledItemDelegate::sizeHint(option, index)
            + QSize(0, option.fontMetrics.height() / 3);
    }

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        option->text = drawnText(option->text, index.row());
        option->textElideMode = elideModeOf(index.row());
    }
};

QRect fieldOf(const QStyleOptionComboBox& option, const QWidget* box)
{
    return box->style()->subControlRect(
        QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, box);
}

/**
 * The extra margin of the text, in pixels. Some styles drop their margins in boxes as low as these,
 * and the text would touch the frame.
 */
int missingMargin(const QStyleOptionComboBox& option, const QWidget* box)
{
    constexpr int kUsual = 4;
    const QRect field = fieldOf(option, box);
    const int margin = option.direction == Qt::RightToLeft ? option.rect.right() - field.right()
                                                           : field.left() - option.rect.left();
    return margin > 1 ? 0 : kUsual - margin;
}

/** Room for the text in the closed box, in pixels. */
int textWidth(const QStyleOptionComboBox& option, const QWidget* box)
{
    constexpr int kMargins = 4;
    constexpr int kIconGap = 4;
    const int icon = option.currentIcon.isNull() ? 0 : option.iconSize.width() + kIconGap;
    return fieldOf(option, box).width() - missingMargin(option, box) - icon - kMargins;
}

} // namespace

QVKeyComboBox::QVKeyComboBox(QWidget* parent)
    : MenuComboBox(parent)
{
    setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
    setItemDelegate(new ItemDelegate(this));
    if (auto* const list = qobject_cast<QListView*>(view())) {
        list->setUniformItemSizes(true); // otherwise each click lays out every item's text
    }
    connect(this, qOverload<int>(&QComboBox::currentIndexChanged), this, &QVKeyComboBox::describe);
    resetItems();
}

void QVKeyComboBox::resetItems()
{
    mApplication.clear();
    clear();
    for (int item = NoAction; item <= PauseTablet; ++item) {
        addItem(textAtFirst(item));
    }
}

void QVKeyComboBox::replaceItem(Item item, const QString& text)
{
    if (item == Application) {
        mApplication.clear();
    }
    removeItem(item);
    insertItem(item, text);
    setItemData(item, platform::literalToolTip(text), Qt::ToolTipRole);
    setCurrentIndex(item);
}

void QVKeyComboBox::showApplication(const QString& path, const QString& name, const QIcon& icon)
{
    replaceItem(Application, path);
    mApplication = name;
    setItemIcon(Application, icon);
    setItemData(Application, toolTipOf(name, path), Qt::ToolTipRole);
    describe();
}

/** Describes the box by the application that it shows, if any. */
void QVKeyComboBox::describe()
{
    const bool showsName = currentIndex() == Application && !mApplication.isEmpty();
    if (showsName && mDescription.isNull()) {
        mDescription = accessibleDescription() + QLatin1String(""); // not null
    }
    if (showsName) {
        setAccessibleDescription(mApplication);
    } else if (!mDescription.isNull()) {
        setAccessibleDescription(std::exchange(mDescription, {}));
    }
}

void QVKeyComboBox::setMarked(bool isMarked)
{
    if (mIsMarked != isMarked) {
        mIsMarked = isMarked;
        update();
    }
}

void QVKeyComboBox::paintEvent(QPaintEvent* event)
{
    static_cast<void>(event);
    QStylePainter painter(this);
    QStyleOptionComboBox option;
    initStyleOption(&option);
    option.currentText = fontMetrics().elidedText(drawnText(option.currentText, currentIndex()),
        elideModeOf(currentIndex()), textWidth(option, this));
    painter.drawComplexControl(QStyle::CC_ComboBox, option);
    const int missing = missingMargin(option, this);
    if (option.direction == Qt::RightToLeft) {
        option.rect.setRight(option.rect.right() - missing);
    } else {
        option.rect.setLeft(option.rect.left() + missing);
    }
    painter.drawControl(QStyle::CE_ComboBoxLabel, option);
    if (mIsMarked) {
        constexpr qreal kWidth = 2;
        painter.setPen(QPen(palette().color(QPalette::Highlight), kWidth));
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(QRectF(rect()).adjusted(kWidth / 2, kWidth / 2, -kWidth / 2, -kWidth / 2));
    }
}

bool QVKeyComboBox::event(QEvent* event)
{
    if (const auto* const help = dynamic_cast<QHelpEvent*>(event);
        help != nullptr && help->type() == QEvent::ToolTip) {
        QStyleOptionComboBox option;
        initStyleOption(&option);
        const QString name = currentIndex() == Application ? mApplication : QString();
        const bool fits = fontMetrics().horizontalAdvance(currentText()) <= textWidth(option, this);
        if (!fits || !name.isEmpty()) {
            QToolTip::showText(help->globalPos(), toolTipOf(name, currentText()), this);
            return true;
        }
    }
    return QComboBox::event(event);
}
