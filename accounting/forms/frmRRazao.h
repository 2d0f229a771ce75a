#pragma once
// The general ledger: the journal of the period unfolded into MovRazao (one
// line for each side of each entry, an opening line and a running balance
// for each account) and printed as RRazao01_L.rpt or, for a matrix printer,
// RRazao01_M.rpt.
#include "core/datastore.h"

#include <QWidget>
#include <memory>

namespace Ui {
class frmRRazao;
}

class frmRRazao : public QWidget {
    Q_OBJECT
public:
    explicit frmRRazao(QWidget *parent = nullptr);
    ~frmRRazao() override;

    void cmdImprimir_Click();

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    void reiniciaContas();

    std::unique_ptr<Ui::frmRRazao> ui_;
    Connection cn_;
    Recordset rs_;
};
