#pragma once
// Collection letters: the open receipts of a unit (or of every unit in debt)
// due in a period, printed on a Carta*.rpt layout the clerk chooses.
#include "billing/forms/relatoriofin.h"

#include <memory>

namespace Ui { class frmCarta_Cob; }

class frmCarta_Cob : public FormImpressao {
    Q_OBJECT
public:
    explicit frmCarta_Cob(QWidget *parent = nullptr);
    ~frmCarta_Cob() override;

    void cmdImprimir_Click() override;

private:
    std::unique_ptr<Ui::frmCarta_Cob> ui_;
};
