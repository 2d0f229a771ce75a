#pragma once
// Bank 353 (Santander): its parameters, one receipt at a time with the
// number in view, the slip (BolRelSantander.rpt) and the month's statement.
// The bank takes no remittance file.
#include "core/datastore.h"

#include <QWidget>
#include <memory>

namespace Ui {
class frmBcoSantander;
}

class frmBcoSantander : public QWidget {
    Q_OBJECT
public:
    explicit frmBcoSantander(QWidget *parent = nullptr);
    ~frmBcoSantander() override;

private:
    void mskCarteiraR_Change();
    void mskNnumero_Change();
    void cmdGravaR_Click();
    void cmdImprimir_Click();
    void cmdTrocatxt_Click();
    void cmdCriaRel_Click();

    std::unique_ptr<Ui::frmBcoSantander> ui_;
    Connection cn_;
};
