#pragma once
// Amounts to receive by entrance: the chosen totals of each unit's receipts,
// written into the work table Conarec and printed from it by the engine's
// print job (Conarec.rpt reads the file of condominium 1 itself).
#include "billing/forms/relatoriofin.h"

#include <memory>

namespace Ui { class frmRCondRec; }

class frmRCondRec : public FormImpressao {
    Q_OBJECT
public:
    explicit frmRCondRec(QWidget *parent = nullptr);
    ~frmRCondRec() override;

    void cmdImprimir_Click() override;

private:
    std::unique_ptr<Ui::frmRCondRec> ui_;
};
