#pragma once
// The condominium's own bank accounts (table Contas). The key is a number.
#include "registers/forms/recordform.h"

class frmTContas : public RecordForm {
    Q_OBJECT
public:
    explicit frmTContas(QWidget *parent = nullptr);
    static const Registro &descricao();

protected:
    bool codigoRecusado(bool achou) override;
};
