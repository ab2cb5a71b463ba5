// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "QVKeyView.h"

#include "QVPictureFile.h"
#include "QVTabletModels.h"
#include "QVTblt_prefPanePref.h"
#include "rzkApplication.h"

#include <QEvent>

#include <array>

namespace {

/** A picture's resource. Types are matched as they are written, capitals included. */
struct Resource {
    const char* name;
    const char* type;
};

/** In the order of QVPicture, without None. */
constexpr std::array<Resource, 7> kPictures{
    {{"tabletpic1", "jpg"}, {"tabletpic2", "jpg"}, {"tabletpic3", "jpg"}, {"tabletpic4", "jpg"},
        {"tabletpic5", "png"}, {"tabletpic6", "PNG"}, {"tabletpic7", "png"}}};

/** The width of the plain pictures, in pixels. The others have twice as many, in as many points. */
constexpr double kPlainWidth = 384;

QImage pictureOf(std::uint16_t productID, bool isDense, bool isDark)
{
    const QVTabletModel* const model = QVFindModel(productID);
    if (model == nullptr || model->picture == QVPicture::None) {
        return {};
    }
    const Resource& picture = kPictures[static_cast<std::size_t>(model->picture) - 1];
    const auto path = QVPicturePath(rzkBundle, QString::fromLatin1(picture.name),
        QString::fromLatin1(picture.type), isDense, isDark);
    // In the form in which it is drawn fastest.
    return path ? QImage(*path).convertToFormat(QImage::Format_ARGB32_Premultiplied) : QImage();
}

} // namespace

QString QVKeyView::spokenContents() const
{
    const QVTabletModel* const model =
        QVFindModel(static_cast<std::uint16_t>(GetqvTabletInfo()->Basic.ProductID));
    return model == nullptr || model->picture == QVPicture::None
        ? tr("There is no picture of this model.")
        : tr("%1. Each key has the number of its list.").arg(QString::fromUtf8(model->name));
}

void QVKeyView::changeEvent(QEvent* event)
{
    PaneView::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        setNeedsDisplay(); // the theme may be a dark one now
    }
}

void QVKeyView::drawRect(QPainter& painter, const platform::Rect& dirty)
{
    const auto productID = static_cast<std::uint16_t>(GetqvTabletInfo()->Basic.ProductID);
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
