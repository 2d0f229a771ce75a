#pragma once
// The login: the installation's administrator or a user of Usuarios. Three
// refused tries end the program; closing the window or Cancelar ends it too.
#include "core/datastore.h"

#include <QDialog>

class QLabel;
class QLineEdit;
class QPushButton;

class frmSenha : public QDialog {
    Q_OBJECT
public:
    explicit frmSenha(QWidget *parent = nullptr);
    ~frmSenha() override;

    int tentativas() const { return tentativas_; }
    void cmdOk_Click();
    void cmdcancelar_Click();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void done(int result) override;

private:
    Connection cn_;
    int tentativas_ = 0;      // refused tries
    bool saiSeFechar_ = true; // still true when the window is closed from its frame
    QLineEdit *txtlogin_;
    QLineEdit *txtsenha_;
    QLabel *lblDatasys_;
    QPushButton *cmdOk_;
    QPushButton *cmdcancelar_;
};
