#pragma once
// Receipts of one place of collection summed by unit (ConCob.rpt).
#include "billing/forms/relatoriofin.h"

#include <memory>

namespace Ui { class frmRCondCobr; }

class frmRCondCobr : public FormImpressao {
    Q_OBJECT
public:
    explicit frmRCondCobr(QWidget *parent = nullptr);
    ~frmRCondCobr() override;

    void cmdImprimir_Click() override;

private:
    std::unique_ptr<Ui::frmRCondCobr> ui_;
};
