// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "QVKeyView.h"

#include "QVPictureFile.h"
#include "QVTabletModels.h"
#include "rzkApplication.h"
#include "rzkBundle.h"

#include <QEvent>

namespace {

/**
 * The width of the standard pictures, in pixels. The others have twice as many pixels for the same
 * points.
 */
constexpr double kPlainWidth = 384;

QImage pictureOf(std::uint16_t productID, bool isDense, bool isDark)
{
    const QVTabletModel* const model = QVFindModel(productID);
    if (model == nullptr || model->picture == nullptr) {
        return {};
    }
    const QString file = QString::fromLatin1(model->picture);
    const auto path =
        QVPicturePath(rzkBundle, file.section(u'.', 0, 0), file.section(u'.', 1), isDense, isDark);
    // Convert to the format that is drawn fastest.
    return path ? QImage(*path).convertToFormat(QImage::Format_ARGB32_Premultiplied) : QImage();
}

} // namespace

QString QVKeyView::spokenContents() const
{
    const QVTabletModel* const model = QVFindModel(QVProductID(*GetqvTabletInfo()));
    if (model == nullptr || model->picture == nullptr) {
        return tr("There is no picture of this model.");
    }
    //: Read by screen readers for the picture of the tablet; %1 is the model's name.
    return tr("%1. Each key has the number of its list.").arg(QString::fromUtf8(model->name));
}

void QVKeyView::changeEvent(QEvent* event)
{
    PaneView::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        setNeedsDisplay(); // the theme may have changed between light and dark
    }
}

void QVKeyView::drawRect(QPainter& painter, const platform::Rect& dirty)
{
    const auto productID = QVProductID(*GetqvTabletInfo());
    const bool isDense = width() * devicePixelRatioF() > kPlainWidth;
    const bool isDark = QVIsDark(palette());
    if (productID != productID_cached || isDense != mIsDense || isDark != mIsDark) {
        mBackgroundImage = pictureOf(productID, isDense, isDark);
        productID_cached = productID;
        mIsDense = isDense;
        mIsDark = isDark;
    }
    if (!mBackgroundImage.isNull()) {
        platform::drawImage(painter, mBackgroundImage, dirty, dirty);
    }
}
