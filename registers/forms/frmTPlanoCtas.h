#pragma once
// The chart of accounts (table Plano). Two shapes of code: an analytic account
// "nn.nnn" and a synthetic (total) account "nn.", the total of the analytic
// accounts of its group. Saving needs the user's Cfalt right.
#include "registers/forms/recordform.h"

class QCheckBox;
class QComboBox;
class QLineEdit;

class frmTPlanoCtas : public RecordForm {
    Q_OBJECT
public:
    explicit frmTPlanoCtas(QWidget *parent = nullptr);
    static const Registro &descricao();

    void mskCodigo_LostFocus() override;
    void cmdGravar_Click() override;

protected:
    QString normalizaCodigo(const QString &masked) const override;
    void valoresExtras(QHash<QString, QString> &valores) const override;
    void validaCampos() override;
    QStringList linhaGrade(const Recordset &rs) const override;
    void poeCodigo(const QString &codigo) override;
    void valoresPadrao() override;
    void modoMudou(int modo) override;

private:
    void reiniciaCodigo();
    void carregaConta(const Recordset &rs);

    QLineEdit *txtnome_ = nullptr;
    QComboBox *cmbTipo_ = nullptr, *cmbClasse_ = nullptr;
    QCheckBox *chkSintetico_ = nullptr;
};
