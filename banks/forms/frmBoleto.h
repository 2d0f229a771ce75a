#pragma once
// Slips of the older model: a receipt printed with the bank's data and the
// month's statement, but without a bar code, typed line or computed number
// (BalRec.rpt). Nothing is written to Recibos.
#include "core/datastore.h"

#include <QWidget>
#include <memory>

namespace Ui {
class frmBoleto;
}

class frmBoleto : public QWidget {
    Q_OBJECT
public:
    explicit frmBoleto(QWidget *parent = nullptr);
    ~frmBoleto() override;

private:
    void carregaRecibos();
    void cmdCriaRel_Click();
    void cmdImprDemonst_Click();
    void cmdImprimir_Click();

    std::unique_ptr<Ui::frmBoleto> ui_;
    Connection cn_;
};
