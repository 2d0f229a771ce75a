#pragma once
// Apartment types (table TpAp) and their apportionment coefficient.
#include "registers/forms/recordform.h"

class NumberField;
class QLineEdit;

class frmTTipAp : public RecordForm {
    Q_OBJECT
public:
    explicit frmTTipAp(QWidget *parent = nullptr);

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

private:
    QString rateioSql() const;

    QLineEdit *txtDescri_ = nullptr;
    NumberField *txtRateio_ = nullptr;
};
