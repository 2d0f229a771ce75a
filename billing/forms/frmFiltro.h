#pragma once
// The filter of receipts kept in Parametros: three conditions, the state and
// the order. frmRecBaixa and the bank forms run the statements it saves.
#include "billing/forms/condicoes.h"
#include "core/datastore.h"

#include <QDialog>
#include <memory>

namespace Ui { class frmFiltro; }

class frmFiltro : public QDialog {
    Q_OBJECT
public:
    explicit frmFiltro(QWidget *parent = nullptr);
    ~frmFiltro() override;

    void cmdGravar_Click();

private:
    std::unique_ptr<Ui::frmFiltro> ui_;
    std::unique_ptr<CondicoesFiltro> condicoes_;
    Connection cn_;
};
