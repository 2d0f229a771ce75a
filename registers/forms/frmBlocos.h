#pragma once
// Blocks and their subgroups (table Grupos): a code of two digits is a block,
// of four a subgroup.
#include "registers/forms/recordform.h"

class frmBlocos : public RecordForm {
    Q_OBJECT
public:
    explicit frmBlocos(QWidget *parent = nullptr);
    static const Registro &descricao();

protected:
    QString normalizaCodigo(const QString &masked) const override;
    void valoresExtras(QHash<QString, QString> &valores) const override;
    QStringList linhaGrade(const Recordset &rs) const override;
};
