// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "QVKeyView.h"

#include "QVTabletModels.h"
#include "QVTblt_prefPanePref.h"
#include "rzkApplication.h"

#include <array>
#include <optional>

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

QImage pictureOf(std::uint16_t productID, bool isDense)
{
    const QVTabletModel* const model = QVFindModel(productID);
    if (model == nullptr || model->picture == QVPicture::None) {
        return {};
    }
    const Resource& picture = kPictures[static_cast<std::size_t>(model->picture) - 1];
    const QString name = QString::fromLatin1(picture.name);
    const QString type = QString::fromLatin1(picture.type);
    std::optional<QString> path;
    if (isDense) {
        path = rzkBundle.pathForResource(name + QStringLiteral("@2x"), type);
    }
    if (!path) {
        path = rzkBundle.pathForResource(name, type);
    }
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

void QVKeyView::drawRect(QPainter& painter, const platform::Rect& dirty)
{
    const auto productID = static_cast<std::uint16_t>(GetqvTabletInfo()->Basic.ProductID);
    const bool isDense = width() * devicePixelRatioF() > kPlainWidth;
    if (productID != productID_cached || isDense != mIsDense) {
        mBackgroundImage = pictureOf(productID, isDense);
        productID_cached = productID;
        mIsDense = isDense;
    }
    if (!mBackgroundImage.isNull()) {
        platform::drawImage(painter, mBackgroundImage, dirty, dirty);
    }
}
