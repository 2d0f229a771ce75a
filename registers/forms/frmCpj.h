#pragma once
// Legal persons (table PJuridica): estate agencies, finance companies,
// contractors and others, with three contacts each. The key is a number.
#include "registers/forms/recordform.h"

class frmCpj : public RecordForm {
    Q_OBJECT
public:
    explicit frmCpj(QWidget *parent = nullptr);
    static const Registro &descricao();

protected:
    QStringList linhaGrade(const Recordset &rs) const override;
    RowFiller linhaRelatorio() const override;
    void valoresPadrao() override;
};
