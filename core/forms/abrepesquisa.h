#pragma once
// The one road into a search dialog (frmPesquisa, frmPesqGeral, frmPesqap and
// their like), for every form that offers a search.
#include <QString>

class QWidget;

// Opens the search dialog of that name (from the form catalog) over a table,
// with a title. True when a code was chosen: it is in session.valorPesq. On a
// cancel the caller's part is done here: cancelaGrava is reset, and false
// comes back.
bool abrePesquisa(QWidget *parent, const QString &dialogo, const QString &titulo, const QString &tabela);
