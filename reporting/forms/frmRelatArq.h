#pragma once
// Listagens Resumidas: a catalogue of listing models on a base table, with a
// from/to filter on one field and a chosen order (lrModNN.rpt).
#include "core/datastore.h"

#include <QWidget>
#include <memory>

namespace Ui {
class frmRelatArq;
}

class frmRelatArq : public QWidget {
    Q_OBJECT
public:
    explicit frmRelatArq(QWidget *parent = nullptr);
    ~frmRelatArq() override;

    void cmdImprimir_Click();
    void cmdLimpaFiltros_Click();

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    void campoEscolhido();

    std::unique_ptr<Ui::frmRelatArq> ui_;
    Connection cn_;
    int modelo_ = 0;  // number of the chosen model; 0: none
};
