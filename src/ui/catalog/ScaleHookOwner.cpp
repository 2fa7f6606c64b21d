#include "ui/catalog/ScaleHookOwner.h"

#include "devices/ScaleExporter.h"
#include "devices/ScaleGoodsHook.h"

namespace sandogh {

ScaleHookOwner::ScaleHookOwner(const ScaleExportConfig& config, MessageService& messages)
    : m_exporter(std::make_unique<ScaleExporter>(config, messages))
    , m_hook(std::make_unique<ScaleGoodsHook>(*m_exporter)) {}

ScaleHookOwner::~ScaleHookOwner() = default;

GoodsSavedHook* ScaleHookOwner::hook() const {
    return m_hook.get();
}

}  // namespace sandogh
