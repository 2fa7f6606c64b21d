#pragma once

#include <QString>
#include <QWidget>
#include <array>

#include "data/repositories/GoodsArticle.h"
#include "data/repositories/GoodsRepository.h"

class QCheckBox;
class QComboBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QSpinBox;
class QToolButton;

namespace sandogh {

class AmountEdit;
class Clock;
class Database;
class GoodsSavedHook;
class MessageService;
class frmParametersList;

// The goods screen: one article with its barcode (proposed from the newest article for a
// new one), names, special code, prices and tax, unit, the counted or weighed
// choice, the favourites pad, the quantity question, the structured code levels chosen
// through the picker (each level's picker opened under the value chosen on the level
// before it), shelf places and the active flag. Save, new, delete (or take out of use when
// documents name the article) and exit. The hook handed in is told after every save and
// delete (the scales' export).
class frmGood : public QWidget {
    Q_OBJECT

public:
    // barcode empty: a new article; otherwise the article to edit. The database, message
    // service, clock and hook are not owned and must outlive the screen; hook may be null.
    frmGood(Database& database, MessageService& messages, const Clock& clock, int userId,
            GoodsSavedHook* hook, const QString& barcode = {}, QWidget* parent = nullptr);

    // Shows the article of a barcode for editing; false (and a message) when there is none.
    bool load(const QString& barcode);
    // Empties the screen for a new article and proposes its barcode.
    void startNew();
    bool isEditing() const { return !m_article.isNew(); }

    // The article as the screen shows it now.
    GoodsArticle article() const;

    // Level 1..9 (TypeNo 501..509): whether the level is defined and so on the screen.
    bool hasLevel(int level) const;
    // Opens the picker of a level, under the value chosen on the level before it. The
    // picker closes itself; its choice is taken by chooseLevel().
    frmParametersList* openLevelPicker(int level);
    // Sets the value of a level (counter 0 clears it) and composes the code again.
    void chooseLevel(int level, int counter);

    // Checks and saves; shows the outcome. True when saved.
    bool save();
    // Deletes the article after the question, or offers to take it out of use when
    // documents name it.
    void deleteArticle();

signals:
    void saved(const QString& barcode);
    void deleted(const QString& barcode);

private:
    struct LevelRow {
        int digits = 0;
        QLabel* label = nullptr;
        QLineEdit* text = nullptr;
        QToolButton* pick = nullptr;
        QToolButton* clear = nullptr;
    };

    QGroupBox* buildLevels();
    void fillUnits();
    void display(const GoodsArticle& article);
    void showLevels();

    Database& m_database;
    MessageService& m_messages;
    GoodsRepository m_repository;
    GoodsArticle m_article;
    std::array<int, GoodsArticle::kLevels> m_levels{};
    std::array<LevelRow, GoodsArticle::kLevels> m_levelRows{};

    QLineEdit* txtBarcode;
    QLineEdit* txtName;
    QLineEdit* txtEnName;
    QLineEdit* txtSpecCode;
    AmountEdit* txtCost;
    AmountEdit* txtCost2;
    AmountEdit* txtArticlePrice;
    AmountEdit* txtTaxValue;
    QComboBox* cboUnit;
    QRadioButton* optCounted;
    QRadioButton* optWeighed;
    QCheckBox* chkFavorite;
    QSpinBox* spnFavoriteTab;
    QCheckBox* chkAQIS;
    QLineEdit* txtComplexCode;
    QLineEdit* txtStockNo1;
    QLineEdit* txtStockNo2;
    QCheckBox* chkActive;
    QPushButton* cmdNew;
    QPushButton* cmdSave;
    QPushButton* cmdDelete;
    QPushButton* cmdExit;
};

}  // namespace sandogh
