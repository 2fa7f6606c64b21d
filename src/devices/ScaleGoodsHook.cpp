#include "ScaleGoodsHook.h"

#include "ScaleExporter.h"
#include "common/AmountText.h"

namespace sandogh {

ScaleGoodsHook::ScaleGoodsHook(ScaleExporter& exporter) : m_exporter(exporter) {}

ScaleGood ScaleGoodsHook::scaleGood(const GoodsArticle& article) {
    ScaleGood good;
    good.plu = article.specCode.trimmed();
    good.name = article.name;
    good.barcode = article.barcode;
    good.cost = QString::fromStdString(AmountText::format(article.cost, 3));
    good.weighed = article.weighed;
    return good;
}

bool ScaleGoodsHook::goodsSaved(Session& session, const GoodsArticle& article) {
    if (article.specCode.trimmed().isEmpty()) {
        return true;
    }
    return m_exporter.goodSaved(session, scaleGood(article));
}

bool ScaleGoodsHook::goodsDeleted(Session& session, const GoodsArticle& article) {
    if (article.specCode.trimmed().isEmpty()) {
        return true;
    }
    return m_exporter.goodDeleted(session, article.specCode.trimmed());
}

}  // namespace sandogh
