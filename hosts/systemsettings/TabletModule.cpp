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

TabletModule::TabletModule(ModuleParent* parent, const ModuleArguments& arguments)
    : KCModule(parent, arguments)
{
    QWidget& widget = moduleWidget(*this);
    auto* const layout = new QVBoxLayout(&widget);
    layout->setContentsMargins(0, 0, 0, 0);

    LoadedPane loaded = loadPane(ownFolder().filePath(QStringLiteral(QVTBLT_MODULE_PATH)),
        QStringLiteral(QVTBLT_RESOURCES_PATH));
    if (!loaded.pane) {
        setButtons(NoAdditionalButton);
        auto* const label = new QLabel(loaded.bundle.localizedString(QStringLiteral("CannotShow"),
                                           QStringLiteral("The tablet's settings cannot be shown."),
                                           QStringLiteral("InfoPlist"))
            + u'\n' + loaded.pane.error().text);
        label->setWordWrap(true);
        layout->addWidget(label);
        return;
    }
    setButtons(Apply); // includes Reset
    mArea = new PaneArea(std::move(*loaded.pane), &widget);
    mArea->setChangeHandler([this](bool isChanged) { unmanagedWidgetChangeState(isChanged); });
    layout->addWidget(mArea);
}

TabletModule::~TabletModule()
{
    if (mArea != nullptr) {
        mArea->setChangeHandler(nullptr); // it may be destroyed later than this
    }
}

void TabletModule::load()
{
    if (mArea != nullptr) {
        mArea->reset();
    }
}

void TabletModule::save()
{
    if (mArea != nullptr) {
        mArea->apply();
    }
}

#include "TabletModule.moc"
