#pragma once
// What the billing pick lists (frmPesqRec, frmPesqRecSel) share: the title
// the caller set, the search box, OK, cancel and a double click, and the
// connection the list is read on. The caller puts the list's statement in
// session.sql; the chosen row's first column comes back in session.valorPesq,
// a cancel in session.cancelaGrava.
#include "core/datastore.h"

#include <QDialog>
#include <QStringList>

class Grade;
class QLineEdit;
class QPushButton;

class ListaDeEscolha : public QDialog {
public:
    ~ListaDeEscolha() override;

    // A number finds its row by column 0; any other text the first row whose
    // column colunaNome begins with it.
    void cmdPesquisar_Click();
    void cmdOk_Click();
    void reject() override;

protected:
    explicit ListaDeEscolha(QWidget *parent) : QDialog(parent) {}
    // Wires the controls of the form's layout and names the grid's columns.
    void liga(Grade *grade, QLineEdit *pesquisa, QPushButton *pesquisar, QPushButton *ok, QPushButton *cancelar,
              const QStringList &titulos, int colunaNome, const QString &naoAchado);
    // Nothing to choose from: the message, a cancel, and the form unloads.
    void vazia(const QString &mensagem);
    // The rows are in: the columns fit them and the first row is current.
    void pronta();

    Connection cn_;

private:
    Grade *grade_ = nullptr;
    QLineEdit *pesquisa_ = nullptr;
    int colunaNome_ = 1;
    QString naoAchado_;
};
