#pragma once
// The users of the installation (table Usuarios of the system file). Only the
// administrator creates users, deletes them and gives rights; any other user
// may open a record and change its name, printer and password.
#include "registers/forms/recordform.h"

class MaskEdit;
class QCheckBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QRadioButton;

class frmUsuarios : public RecordForm {
    Q_OBJECT
public:
    explicit frmUsuarios(QWidget *parent = nullptr);

    void chkBdcon_Click();
    void chkCfcon_Click();
    void cmdTrocasen_Click();
    void cmdPesqCli_Click();
    void mskCodcli_LostFocus();

protected:
    QString normalizaCodigo(const QString &masked) const override;
    QString sqlBusca(const QString &codigo) const override;
    QString sqlExiste(const QString &codigo) const override;
    QString sqlContagem() const override;
    QString sqlLista() const override;
    QString sqlInsert(const QString &codigo) const override;
    QString sqlUpdate(const QString &codigo) const override;
    QString sqlDelete(const QString &codigo) const override;
    void carregaCampos(const Recordset &rs) override;
    void validaCampos() override;
    QStringList linhaGrade(const Recordset &rs) const override;
    QStringList titulosGrade() const override;
    bool codigoNumerico() const override { return true; }
    void imprime(const QString &nome) override;
    QString chaveImpressao() const override;
    QWidget *primeiroCampo() const override;
    QString mensagemAbandono() const override;
    QString mensagemCodigoInvalido() const override;
    QString perguntaExclusao(const QString &codigo) const override;
    void modoMudou(int modo) override;
    bool codigoRecusado(bool achou) override;
    void inclusaoRecusada() override;
    void antesDasRegras() override;
    Pesquisa pesquisa() const override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool administrador() const;
    QString impressoraMarcada() const;
    QString empatValor() const;
    QString direitos(const char *separador) const;  // the nine booleans
    // A dependent box is enabled only while its master (Consulta) is checked.
    void aplicaDependencia(QCheckBox *mestre, const QList<QCheckBox *> &dependentes, bool desmarca);

    QLineEdit *txtnome_;
    QLineEdit *txtSenha_;
    QLabel *lblDsenha_;
    QRadioButton *optIm_, *OptIj_, *optIl_, *optIn_;
    MaskEdit *mskCodcli_;
    QLabel *lblNome_;
    QGroupBox *frmBdados_, *frmCFinc_;
    QCheckBox *chkBdcon_, *chkBdadi_, *chkBdexc_, *chkBdalt_;
    QCheckBox *chkCfcon_, *chkCfadi_, *chkCfexc_, *chkCfalt_, *chkCfbai_;
};
