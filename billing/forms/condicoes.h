#pragma once
// The three condition rows of frmFiltro and frmPesqfin (cmbCampo0..2 with
// their From and Up to boxes of each kind: txtDe/tdnDe/tdbDe, txtAt/tdnAt/
// tdbAt), the state options optA/optB/optT and cmbOrdem, found by name in
// the form. Choosing a field shows the boxes of its kind and hides and clears
// the other two.
#include "billing/filtro.h"

#include <QWidget>

class CondicoesFiltro {
public:
    explicit CondicoesFiltro(QWidget *form);
    void mostra(const Filtro &f);
    Filtro filtro() const;

private:
    void campoEscolhido(int i);
    QWidget *form_;
};
