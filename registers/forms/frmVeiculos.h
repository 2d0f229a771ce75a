#pragma once
// Vehicles (table Veiculos), keyed by the plate. Make and model are chosen
// from the makes and models of Tpveiculos and stored by their names.
#include "registers/forms/recordform.h"

class MaskEdit;
class QComboBox;
class QLabel;

class frmVeiculos : public RecordForm {
    Q_OBJECT
public:
    explicit frmVeiculos(QWidget *parent = nullptr);
    static const Registro &descricao();

protected:
    QString normalizaCodigo(const QString &masked) const override;
    bool codigoVazio(const QString &codigo) const override;
    void valoresExtras(QHash<QString, QString> &valores) const override;
    void carregaExtras(const Recordset &rs) override;
    void validaCampos() override;

private:
    QString unidade() const;
    void mostraUnidade();
    void enchaMarcas();
    void cmbMarca_Click();

    MaskEdit *mskApto_ = nullptr, *mskAno_ = nullptr;
    QComboBox *cmbMarca_ = nullptr, *cmbModelo_ = nullptr;
    QLabel *lblNomeApto_ = nullptr;
    bool enchendo_ = false;
};
