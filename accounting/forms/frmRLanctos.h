#pragma once
// The list of the journal's entries of a period inside one year, in a chosen
// order and under a title the user may change (Rlanca.rpt).
#include "core/datastore.h"

#include <QWidget>
#include <memory>

namespace Ui {
class frmRLanctos;
}

class frmRLanctos : public QWidget {
    Q_OBJECT
public:
    explicit frmRLanctos(QWidget *parent = nullptr);
    ~frmRLanctos() override;

    void cmdImprimir_Click();

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    std::unique_ptr<Ui::frmRLanctos> ui_;
    Connection cn_;
    Recordset rs_;
};
