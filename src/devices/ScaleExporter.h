#pragma once

#include "ScaleExportConfig.h"
#include "ScaleGood.h"
#include "settings/MessageService.h"

namespace sandogh {

class Session;

// Keeps the label scales' own databases in step with the goods: after every save
// of a good its scale record is written into each enabled vendor database, Takin
// first, then Mizan, then Sadr. The statements run on the caller's session, so a
// caller's transaction takes them in.
class ScaleExporter {
public:
    ScaleExporter(const ScaleExportConfig& config, MessageService& messages);

    // After a good is saved. False when a statement failed; the connection
    // message has been shown then and the vendors after the failing one are skipped.
    bool goodSaved(Session& session, const ScaleGood& good);
    // Among the deletions of a good: its OnlineSales record.
    bool goodDeleted(Session& session, const QString& plu);

    bool exportTakin(Session& session, const ScaleGood& good);
    bool exportMizan(Session& session, const ScaleGood& good);
    bool exportSadr(Session& session, const ScaleGood& good);

private:
    bool failed();

    ScaleExportConfig m_config;
    MessageService& m_messages;
};

}  // namespace sandogh
