#pragma once
// The pick list of units with their last emission, for the selective flow.
// The caller puts its statement (codigo, nome, nrecibo, nemis, demis of Aptos)
// in session.sql and opens it with abrePesquisa(parent, "frmPesqRecSel", title,
// ""); the unit's code comes back in session.valorPesq, a cancel in cancelaGrava.
#include "billing/forms/listaescolha.h"

#include <memory>

namespace Ui { class frmPesqRecSel; }

class frmPesqRecSel : public ListaDeEscolha {
    Q_OBJECT
public:
    explicit frmPesqRecSel(QWidget *parent = nullptr);
    ~frmPesqRecSel() override;

private:
    std::unique_ptr<Ui::frmPesqRecSel> ui_;
};
