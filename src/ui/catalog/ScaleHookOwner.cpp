#include "ui/catalog/ScaleHookOwner.h"

#include "devices/ScaleExporter.h"
#include "devices/ScaleGoodsHook.h"

namespace sandogh {

ScaleHookOwner::ScaleHookOwner(const ScaleExportConfig& config, MessageService& messages)
    : exporter_(std::make_unique<ScaleExporter>(config, messages))
    , hook_(std::make_unique<ScaleGoodsHook>(*exporter_)) {}

ScaleHookOwner::~ScaleHookOwner() = default;

GoodsSavedHook* ScaleHookOwner::hook() const {
    return hook_.get();
}

}  // namespace sandogh
