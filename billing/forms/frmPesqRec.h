#pragma once
// The pick list of receipts. The caller puts the list statement in
// session.sql and opens it with abrePesquisa(parent, "frmPesqRec", title,
// count statement); the chosen receipt's number comes back in
// session.valorPesq, a cancel in session.cancelaGrava.
#include "billing/forms/listaescolha.h"

#include <memory>

namespace Ui { class frmPesqRec; }

class frmPesqRec : public ListaDeEscolha {
    Q_OBJECT
public:
    explicit frmPesqRec(QWidget *parent = nullptr);
    ~frmPesqRec() override;

private:
    std::unique_ptr<Ui::frmPesqRec> ui_;
};
