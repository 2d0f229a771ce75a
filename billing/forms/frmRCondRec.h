#pragma once
// Amounts to receive by entrance: the chosen totals of each unit's receipts,
// written into the work table Conarec and printed from it by the engine's
// print job (Conarec.rpt reads the file of condominium 1 itself).
#include "core/datastore.h"

#include <QWidget>
#include <memory>

namespace Ui { class frmRCondRec; }

class frmRCondRec : public QWidget {
    Q_OBJECT
public:
    explicit frmRCondRec(QWidget *parent = nullptr);
    ~frmRCondRec() override;

    void cmdImprimir_Click();

private:
    std::unique_ptr<Ui::frmRCondRec> ui_;
    Connection cn_;
};
