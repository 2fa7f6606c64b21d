#pragma once

#include "ScaleGood.h"
#include "data/repositories/GoodsSavedHook.h"

namespace sandogh {

class ScaleExporter;

// The goods catalogue's follow-up that feeds the label scales: after an article is
// saved its scale record goes to every enabled vendor database, after it is deleted its
// Takin record goes. The scales know goods by PLU, the article's special code; an
// article without one has no scale record and is left out.
class ScaleGoodsHook final : public GoodsSavedHook {
public:
    explicit ScaleGoodsHook(ScaleExporter& exporter);

    bool goodsSaved(Session& session, const GoodsArticle& article) override;
    bool goodsDeleted(Session& session, const GoodsArticle& article) override;

    // The scale record of an article: PLU, name, barcode, the sale price as the price box
    // shows it, and the weighed flag of the counted/weighed choice.
    static ScaleGood scaleGood(const GoodsArticle& article);

private:
    ScaleExporter& m_exporter;
};

}  // namespace sandogh
