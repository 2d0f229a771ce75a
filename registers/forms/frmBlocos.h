#pragma once
// Blocks and their subgroups (table Grupos): a code of two digits is a block,
// of four a subgroup.
#include "registers/forms/recordform.h"

class QLineEdit;

class frmBlocos : public RecordForm {
    Q_OBJECT
public:
    explicit frmBlocos(QWidget *parent = nullptr);

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
    void imprime(const QString &chave) override;
    QWidget *primeiroCampo() const override;
    void poeCodigo(const QString &codigo) override;

private:
    QLineEdit *txtDescri_ = nullptr;
};
