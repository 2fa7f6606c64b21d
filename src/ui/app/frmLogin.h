#pragma once

#include <QString>
#include <QWidget>

#include "app/UserAccount.h"

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;

namespace sandogh {

class AppContext;

// The login screen. On load it shows today ("امروز : ", the weekday and the Jalali date),
// the shop's name, and makes sure the shop has an administrator (telling the person
// the initial password when one had to be made).
//
// Enter in the user name box moves to the password, Enter in the password box logs in.
// A refused login shows one warning, whatever was wrong, and the person may try again as
// often as needed. An accepted login emits loggedIn(); Cancel emits cancelled(). Where the
// shop has more than one fiscal year, cmbYear chooses the one to work in (administrators).
class frmLogin : public QWidget {
    Q_OBJECT

public:
    // The one message for every refused login.
    static const QString& wrongLoginMessage();
    // "امروز : " followed by the weekday, one blank and the date.
    static QString dateCaption(const QString& weekday, const QString& jalaliDate);
    // Refused when another than an administrator chooses another fiscal year.
    static const QString& yearForAdministratorsMessage();

    explicit frmLogin(AppContext& context, QWidget* parent = nullptr);

    // Fills the labels and checks the administrator; run once before the screen shows.
    void Form_Load();

signals:
    void loggedIn(const sandogh::UserAccount& user);
    // An administrator logged in choosing another fiscal year (cmbYear), written to the
    // setting "Year"/"Year"; the shop must be opened again on it.
    void yearChosen(const sandogh::UserAccount& user);
    void cancelled();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void cmdOK_Click();
    void cmdCancel_Click();
    void lblDate_Click();
    void txtUserName_Enter();

    AppContext& m_context;
    bool m_done = false;

    QLabel* lblCompany;
    QLabel* lblDate;
    QLineEdit* txtUserName;
    QLineEdit* txtPassword;
    QLabel* lblYear;
    QComboBox* cmbYear;
    QPushButton* cmdOK;
    QPushButton* cmdCancel;
};

}  // namespace sandogh
