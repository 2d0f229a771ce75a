#pragma once
// The units (table Aptos): owner, tenant, telephones, the data that drive
// billing and the unit's type. Residents and vehicles hang from its code. The
// key is text of six digits.
#include "registers/forms/recordform.h"

class QComboBox;
class QTabWidget;

class frmAptos : public RecordForm {
    Q_OBJECT
public:
    explicit frmAptos(QWidget *parent = nullptr);
    static const Registro &descricao();

    void cmdApagar_Click();
    void cmdMoradores_Click();

protected:
    void valoresExtras(QHash<QString, QString> &valores) const override;
    void carregaExtras(const Recordset &rs) override;
    bool codigoRecusado(bool achou) override;
    void modoMudou(int modo) override;
    void imprime(const QString &chave) override;
    QString perguntaExclusao(const QString &codigo) const override;
    void antesDeApagar(const QString &codigo) override;

private:
    void encheCombos();
    void enchePessoas(QComboBox *combo, const QString &tipo);
    static void poeNome(QComboBox *combo, Recordset rs);

    QComboBox *cmbTipoapt_, *cmbUso_, *cmbSituacao_, *cmbImobiliaria_, *cmbFinanceira_;
    QTabWidget *ssfones_;
};
