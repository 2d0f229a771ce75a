#pragma once
// The change of a user's password, for the code in valorPesq. Three wrong
// old passwords in a row close the dialog. Cancelar sets cancelaGrava.
#include "core/datastore.h"

#include <QDialog>

class QLabel;
class QLineEdit;
class QPushButton;

class frmTrocasen : public QDialog {
    Q_OBJECT
public:
    explicit frmTrocasen(QWidget *parent = nullptr);
    ~frmTrocasen() override;

    void txtsenha_LostFocus();
    void cmdGravar_Click();
    void cmdCancelar_Click();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void done(int result) override;

private:
    Connection cn_;
    QString codigo_;
    QString senha_;  // the scrambled password of the row
    QLineEdit *txtsenha_;
    QLineEdit *txtNova_;
    QLineEdit *txtConfirma_;
    QLabel *lblData_;
    QPushButton *cmdGravar_;
    QPushButton *cmdCancelar_;
};
