#include "ui/catalog/ParameterLists.h"

#include "data/repositories/CodeLevelsRepository.h"
#include "data/repositories/TypesRepository.h"
#include "ui/catalog/CatalogCaptions.h"

namespace sandogh {

QString ParameterLists::fixedTitle(int typeNo) {
    using namespace catalogcaptions;
    switch (typeNo) {
        case kUnits:
            return kUnitsList;
        case kCustomerGrades:
            return kGradesList;
        case kCustomerJobs:
            return kJobsList;
        case kCustomerInterests:
            return kInterestsList;
        case kCustomerAreas:
            return kAreasList;
        default:
            break;
    }
    return {};
}

QString ParameterLists::title(Database& database, int typeNo) {
    const QString fixed = fixedTitle(typeNo);
    if (!fixed.isEmpty() || !TypesRepository::isCodeLevel(typeNo)) {
        return fixed.isEmpty() ? QString::number(typeNo) : fixed;
    }
    CodeLevelsRepository levels(database);
    for (const auto& level : levels.list(CodeLevelsRepository::familyOf(typeNo))) {
        if (level.typeNo == typeNo && !level.name.isEmpty()) {
            return level.name;
        }
    }
    return QString::number(typeNo);
}

QList<ParameterLists::Entry> ParameterLists::all(Database& database) {
    QList<Entry> entries;
    for (const int typeNo :
         {kUnits, kCustomerGrades, kCustomerJobs, kCustomerInterests, kCustomerAreas}) {
        entries << Entry{typeNo, fixedTitle(typeNo)};
    }
    CodeLevelsRepository levels(database);
    for (const auto family :
         {CodeLevelsRepository::Family::Goods, CodeLevelsRepository::Family::Accounts}) {
        for (const auto& level : levels.list(family)) {
            if (TypesRepository::isCodeLevel(level.typeNo)) {
                entries << Entry{level.typeNo,
                                 level.name.isEmpty() ? QString::number(level.typeNo) : level.name};
            }
        }
    }
    return entries;
}

}  // namespace sandogh
