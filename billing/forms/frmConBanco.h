#pragma once
// Receipts sent to one bank, one line each (ConBanco.rpt).
#include "billing/forms/relatoriofin.h"

#include <memory>

namespace Ui { class frmConBanco; }

class frmConBanco : public FormImpressao {
    Q_OBJECT
public:
    explicit frmConBanco(QWidget *parent = nullptr);
    ~frmConBanco() override;

    void cmdImprimir_Click() override;

private:
    std::unique_ptr<Ui::frmConBanco> ui_;
};
