#pragma once
// Makes and models of vehicles (table Tpveiculos): a code of two digits is a
// make, of four a model of the make of its first two.
#include "registers/forms/recordform.h"

class frmTpveiculos : public RecordForm {
    Q_OBJECT
public:
    explicit frmTpveiculos(QWidget *parent = nullptr);
    static const Registro &descricao();

protected:
    QString normalizaCodigo(const QString &masked) const override;
    void valoresExtras(QHash<QString, QString> &valores) const override;
    QStringList linhaGrade(const Recordset &rs) const override;
};
