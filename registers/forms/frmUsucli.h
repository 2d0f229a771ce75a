#pragma once
// The condominiums of the installation (table Clientes of the system file).
// A new code gets its file ConNNN.mdb, copied from Matrix.mdb, when the user
// agrees; deleting a condominium deletes its file.
#include "registers/forms/recordform.h"

class MaskEdit;
class QLineEdit;
class QPlainTextEdit;

class frmUsucli : public RecordForm {
    Q_OBJECT
public:
    explicit frmUsucli(QWidget *parent = nullptr);

    void txtUf_LostFocus();
    void mskcgc_LostFocus();
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
    QWidget *primeiroCampo() const override;
    QString mensagemAbandono() const override;
    QString mensagemCodigoInvalido() const override;
    QString perguntaExclusao(const QString &codigo) const override;
    int estiloExclusao() const override;
    void antesDeApagar(const QString &codigo) override;
    void antesDasRegras() override;
    void aposGravar(const QString &codigo, bool eraNovo) override;
    Pesquisa pesquisa() const override;

private:
    QString cepGravado() const;

    QLineEdit *txtnome_, *txtEndereco_, *txtNumero_, *txtComplemento_, *txtBairro_, *txtCidade_, *txtUf_;
    MaskEdit *mskCep_, *mskcgc_, *mskCpf_;
    QLineEdit *txtDdd_, *txtFone_, *txtFone2_, *txtFax_, *txtemail_, *txthomepage_;
    QPlainTextEdit *txtObs_;
};
