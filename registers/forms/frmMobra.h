#pragma once
// Workforce (table Mobra): the people who work in the condominium. The kind
// says whose staff they are; for a contractor's staff codemap holds the firm's
// codauto in PJuridica, for a unit's staff the unit's codauto in Aptos.
#include "registers/forms/recordform.h"

class QComboBox;

class frmMobra : public RecordForm {
    Q_OBJECT
public:
    explicit frmMobra(QWidget *parent = nullptr);
    static const Registro &descricao();

protected:
    void valoresExtras(QHash<QString, QString> &valores) const override;
    void carregaExtras(const Recordset &rs) override;
    void validaCampos() override;
    QStringList linhaGrade(const Recordset &rs) const override;
    void imprime(const QString &chave) override;
    void modoMudou(int modo) override;

private:
    void cmbTipo_Click();
    void cmbEmpAp_Click();

    QComboBox *cmbTipo_ = nullptr, *cmbEmpAp_ = nullptr;
    QString codemap_ = QStringLiteral("0");
    bool enchendo_ = false;
};
