#pragma once
// The receipts emitted in a year, one line each (RAnual.rpt).
#include "billing/forms/relatoriofin.h"

#include <memory>

namespace Ui { class frmRRecAnual; }

class frmRRecAnual : public FormImpressao {
    Q_OBJECT
public:
    explicit frmRRecAnual(QWidget *parent = nullptr);
    ~frmRRecAnual() override;

    void cmdImprimir_Click() override;

private:
    std::unique_ptr<Ui::frmRRecAnual> ui_;
};
