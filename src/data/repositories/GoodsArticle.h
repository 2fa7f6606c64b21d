#pragma once

#include <QString>
#include <array>

namespace sandogh {

// One article of the goods catalogue (a row of Goods) as the goods screen edits it.
// Articles are known everywhere by their barcode; id is the row number, 0 for an
// article not saved yet.
struct GoodsArticle {
    static constexpr int kLevels = 9;  // LevelID1 .. LevelID9: goods levels 501 .. 509

    int id = 0;
    QString barcode;   // EAN_Code
    QString specCode;  // Spec_Code: the short code of the cash desk, the PLU of the scales
    QString name;
    QString enName;           // the Latin name of scales and exports
    double cost = 0;          // the sale price
    double cost2 = 0;         // the second sale price
    double articlePrice = 0;  // the price printed on the article
    double taxValue = 0;      // percent
    int unit = 0;             // Types.Counter of the unit (TypeNo 61), 0 for none
    bool weighed = false;     // sold by weight: GType and Type 1, the scales' weight unit
    bool favourite = false;   // ISFavorite: on the favourites pad of the sale screen
    int favoriteTab = 0;
    bool askQuantity = false;  // AQIS: the sale screen asks the quantity
    // Types.Counter of the chosen value of each goods level; 0 where none is chosen.
    std::array<int, kLevels> levels{};
    QString complexCode;  // composed from the chosen level codes when saved
    QString stockNo1;     // shelf places
    QString stockNo2;
    bool active = true;  // ISActive
    // Kept as they are by the goods screen.
    QString note;
    double inPacket = 0;  // C_In_Paket
    double minimum = 0;   // G_Min
    double maximum = 0;   // G_Max

    bool isNew() const { return id == 0; }
};

}  // namespace sandogh
