#pragma once

#include <QString>
#include <QWidget>

class QLineEdit;
class QPushButton;

namespace sandogh {

class AppContext;

// Opening the next fiscal year from the back office: the new database's name, then the
// transfer (NewFiscalYear); the present year stays open until the administrator chooses
// the new one at the login.
class frmNewYear : public QWidget {
    Q_OBJECT

public:
    explicit frmNewYear(AppContext& context, QWidget* parent = nullptr);

    // Starts the transfer into the name box's database; finished() and a message follow.
    void openYear();
    bool isBusy() const { return m_busy; }

signals:
    void finished(bool ok);

private:
    bool m_busy = false;
    AppContext& m_context;
    QLineEdit* txtName;
    QPushButton* cmdOpen;
    QPushButton* cmdExit;
};

}  // namespace sandogh
