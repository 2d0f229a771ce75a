#pragma once
// Financial searches: receipts by up to three conditions and a state, shown
// in a grid and printed as a listing (by number or by unit) and, on demand,
// with the totals by event.
#include "billing/forms/condicoes.h"
#include "core/datastore.h"

#include <QWidget>
#include <memory>

namespace Ui { class frmPesqfin; }

class frmPesqfin : public QWidget {
    Q_OBJECT
public:
    explicit frmPesqfin(QWidget *parent = nullptr);
    ~frmPesqfin() override;

    void cmdPesquisar_Click();
    void cmdImprimir_Click();

private:
    QString modelo() const;

    std::unique_ptr<Ui::frmPesqfin> ui_;
    std::unique_ptr<CondicoesFiltro> condicoes_;
    Connection cn_;
    Recordset rs_;
};
