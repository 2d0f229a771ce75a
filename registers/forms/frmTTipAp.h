#pragma once
// Apartment types (table TpAp) and their apportionment coefficient.
#include "registers/forms/recordform.h"

class frmTTipAp : public RecordForm {
    Q_OBJECT
public:
    explicit frmTTipAp(QWidget *parent = nullptr);
    static const Registro &descricao();
};
