#pragma once
// Residents (table Moradores). A resident has no code of its own: the pair of
// name and unit identifies it, and the register finds it by its automatic
// number (codauto), the number shown in the grid.
#include "registers/forms/recordform.h"

class MaskEdit;
class QComboBox;
class QLabel;

class frmMoradores : public RecordForm {
    Q_OBJECT
public:
    explicit frmMoradores(QWidget *parent = nullptr);
    static const Registro &descricao();

protected:
    void valoresExtras(QHash<QString, QString> &valores) const override;
    void carregaExtras(const Recordset &rs) override;
    void validaCampos() override;
    QStringList linhaGrade(const Recordset &rs) const override;
    void aposGravar(const QString &codigo, bool eraNovo) override;
    void modoMudou(int modo) override;

private:
    QString unidade() const;
    void mskCodap_LostFocus();

    MaskEdit *mskCodap_ = nullptr;
    QComboBox *cmbVinculo_ = nullptr;
    QLabel *lblApto_ = nullptr;
    // The pair as it was loaded: the update and the delete find the row by it.
    QString nomeAntigo_, codapAntigo_;
};
