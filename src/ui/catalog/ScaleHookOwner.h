#pragma once

#include <QObject>
#include <memory>

namespace sandogh {

class GoodsSavedHook;
class MessageService;
class ScaleExporter;
class ScaleGoodsHook;
struct ScaleExportConfig;

// Keeps the scales' export of a goods screen alive as long as the screen: made before
// the screen (which is handed hook()), then given the screen as its parent.
class ScaleHookOwner : public QObject {
    Q_OBJECT

public:
    ScaleHookOwner(const ScaleExportConfig& config, MessageService& messages);
    ~ScaleHookOwner() override;

    GoodsSavedHook* hook() const;

private:
    std::unique_ptr<ScaleExporter> m_exporter;
    std::unique_ptr<ScaleGoodsHook> m_hook;
};

}  // namespace sandogh
