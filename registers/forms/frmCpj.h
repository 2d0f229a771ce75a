#pragma once
// Legal persons (table PJuridica): estate agencies, finance companies,
// contractors and others, with three contacts each. The key is a number.
#include "registers/forms/recordform.h"

class DateField;
class MaskEdit;
class QLineEdit;
class QPlainTextEdit;
class QRadioButton;

class frmCpj : public RecordForm {
    Q_OBJECT
public:
    explicit frmCpj(QWidget *parent = nullptr);

    void mskCep_LostFocus();
    void txtUf_LostFocus();
    void mskCnpj_LostFocus();
    void mskCpf_LostFocus();

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
    void imprime(const QString &codigo) override;
    QWidget *primeiroCampo() const override;
    QString mensagemCodigoInvalido() const override;
    void valoresPadrao() override;
    Pesquisa pesquisa() const override;

private:
    QString tipoMarcado() const;
    // The columns after the key, in the insert's order, as statement values.
    QList<QPair<QString, QString>> valores() const;

    QLineEdit *txtNome_, *txtEndereco_, *txtNumero_, *txtComplemento_, *txtBairro_, *txtCidade_, *txtUf_;
    MaskEdit *mskCep_, *mskCnpj_, *mskCpf_;
    QLineEdit *txtInscest_;
    QRadioButton *optTipo_[4];
    QLineEdit *txtContato_[3], *txtSetor_[3];
    DateField *mskNascto_[3];
    QLineEdit *txtDdd_, *txtFone_[3], *txtEmail_, *txtHomepage_, *txtFax_;
    QPlainTextEdit *txtObs_;
};
