// SPDX-FileCopyrightText: 2026 The QVTblt developers
// SPDX-License-Identifier: MIT
#include "TabletModule.h"

#include "PaneLoader.h"

#include <QDir>
#include <QFileInfo>
#include <QLabel>
#include <QVBoxLayout>

#include <KPluginFactory>

#include <dlfcn.h>

K_PLUGIN_CLASS_WITH_JSON(TabletModule, "kcm_qvtblt.json")

namespace {

/** The folder of the file that this code was loaded from. */
QDir ownFolder()
{
    Dl_info info{};
    if (::dladdr(reinterpret_cast<const void*>(&ownFolder), &info) == 0) {
        return {};
    }
    return QFileInfo(QFile::decodeName(info.dli_fname)).absoluteDir();
}

} // namespace

TabletModule::TabletModule(QWidget* parent, const QVariantList& arguments)
    : KCModule(parent, arguments)
{
    setButtons(NoAdditionalButton);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);

    LoadedPane loaded = loadPane(ownFolder().filePath(QStringLiteral(QVTBLT_MODULE_PATH)),
        QStringLiteral(QVTBLT_RESOURCES_PATH));
    if (!loaded.pane) {
        auto* const label =
            new QLabel(tr("The tablet's settings cannot be shown.\n%1").arg(loaded.error));
        label->setWordWrap(true);
        layout->addWidget(label);
        return;
    }
    mPane = std::move(loaded.pane);
    layout->addWidget(mPane->loadMainView());
}

TabletModule::~TabletModule()
{
    if (mSelected) {
        mPane->willUnselect();
        mPane->didUnselect();
    }
}

void TabletModule::showEvent(QShowEvent* event)
{
    const bool isFirst = mPane && !mSelected;
    if (isFirst) {
        mSelected = true;
        mPane->willSelect();
    }
    KCModule::showEvent(event);
    if (isFirst) {
        mPane->didSelect();
    }
}

#include "TabletModule.moc"
