#pragma once
// The activation of a condominium for the signed-in user: the session's
// active file changes and Usuarios.empat remembers it for the next login.
#include "core/datastore.h"

#include <QDialog>

class MaskEdit;
class QLabel;

class frmAtempr : public QDialog {
    Q_OBJECT
public:
    explicit frmAtempr(QWidget *parent = nullptr);
    ~frmAtempr() override;

    void mskCodcli_LostFocus();
    void cmdPesqCli_Click();
    void cmdGravar_Click();
    void cmdSair_Click();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void done(int result) override;

private:
    QString nomeDoCondominio(const QString &codigo);

    Connection cn_;
    MaskEdit *mskCodcli_;
    QLabel *lblNome_;
};
