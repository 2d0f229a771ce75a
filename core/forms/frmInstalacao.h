#pragma once
// The first run of an installation: the client's name and the administrator's
// login and password (twice), written to Habitarium.ini in the program
// directory. Cancelar ends the program, which cannot run without them.
#include <QDialog>

class QLineEdit;

class frmInstalacao : public QDialog {
    Q_OBJECT
public:
    explicit frmInstalacao(QWidget *parent = nullptr);

    void cmdGravar_Click();
    void cmdCancelar_Click();

private:
    QLineEdit *txtCliente_, *txtLogin_, *txtSenha_, *txtConfirma_;
};
