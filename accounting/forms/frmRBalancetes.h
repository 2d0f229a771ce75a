#pragma once
// The monthly or period trial balance and the three statements of accounts
// for the residents: fills RBalancete (or RPcontas for the special model)
// from the monthly figures of Plano and prints Balancete.rpt, Pct.rpt,
// PctPr.rpt or PctEspecial.rpt.
#include "core/datastore.h"

#include <QWidget>
#include <memory>

namespace Ui {
class frmRBalancetes;
}

class frmRBalancetes : public QWidget {
    Q_OBJECT
public:
    explicit frmRBalancetes(QWidget *parent = nullptr);
    ~frmRBalancetes() override;

    void cmdImprime_Click();

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    void imprimeBalancete(const QString &titulo);
    void imprimePctEspecial(const QString &ano);

    std::unique_ptr<Ui::frmRBalancetes> ui_;
    Connection cn_;
    Recordset rs_;
};
