#pragma once
// Voter's cards for the assembly, for one unit or all; a unit with open
// receipts due up to the date given cannot vote.
#include "billing/forms/relatoriofin.h"

#include <memory>

namespace Ui { class frmTEleitor; }

class frmTEleitor : public FormImpressao {
    Q_OBJECT
public:
    explicit frmTEleitor(QWidget *parent = nullptr);
    ~frmTEleitor() override;

    void cmdImprimir_Click() override;

private:
    std::unique_ptr<Ui::frmTEleitor> ui_;
};
