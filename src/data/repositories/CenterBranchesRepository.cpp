#include "data/repositories/CenterBranchesRepository.h"

#include "data/Session.h"
#include "data/SqlQuery.h"
#include "data/procedures/ReturningInsert.h"

namespace sandogh {

namespace {

const QString kOfKind = QStringLiteral(
    "SELECT COALESCE(ID, 0), COALESCE(Name, '') FROM tblCenterBranches WHERE TypeNo = :kind "
    "ORDER BY ID");
const QString kFind =
    QStringLiteral("SELECT ID, COALESCE(Name, '') FROM tblCenterBranches WHERE ID = :id");
const QString kCentreId =
    QStringLiteral("SELECT MIN(ID) FROM tblCenterBranches WHERE TypeNo = :kind");
// The name the centre row is made with the first time an internal document needs it.
const QString kCentreName = QStringLiteral("مرکز");

}  // namespace

std::optional<QList<CenterBranch>> CenterBranchesRepository::ofKind(Session& session, int typeNo) {
    SqlQuery q(session, kOfKind);
    q.bind(QStringLiteral(":kind"), typeNo);
    if (!q.exec()) {
        return std::nullopt;
    }
    QList<CenterBranch> rows;
    while (q.next()) {
        rows.append(CenterBranch{q.integer(0), q.text(1)});
    }
    return rows;
}

std::optional<CenterBranch> CenterBranchesRepository::find(Session& session, int id) {
    SqlQuery q(session, kFind);
    q.bind(QStringLiteral(":id"), id);
    if (!q.exec() || !q.next()) {
        return std::nullopt;
    }
    return CenterBranch{q.integer(0), q.text(1)};
}

int CenterBranchesRepository::centre(Session& session) {
    SqlQuery q(session, kCentreId);
    q.bind(QStringLiteral(":kind"), kCentre);
    if (!q.exec()) {
        return 0;
    }
    if (q.next() && !q.isNull(0)) {
        return q.integer(0);
    }
    return add(session, kCentreName, kCentre);
}

int CenterBranchesRepository::add(Session& session, const QString& name, int typeNo) {
    return static_cast<int>(procedures::ReturningInsert::insert(
        session, QStringLiteral("tblCenterBranches"),
        {{QStringLiteral("Name"), name}, {QStringLiteral("TypeNo"), typeNo}},
        QStringLiteral("ID")));
}

}  // namespace sandogh
