#pragma once

#include <QString>

#include "data/repositories/GoodsArticle.h"

namespace sandogh {

class Session;

// Told after every save and delete of an article, once its rows are committed, on the
// session that wrote them. The label scales' export plugs in here; the goods list and
// the goods screen are handed the hook by whoever opens them.
//
// A false answer means the follow-up failed and the person has been told; the article
// itself stays saved (or deleted).
class GoodsSavedHook {
public:
    virtual ~GoodsSavedHook() = default;

    virtual bool goodsSaved(Session& session, const GoodsArticle& article) = 0;
    virtual bool goodsDeleted(Session& session, const GoodsArticle& article) = 0;
};

}  // namespace sandogh
