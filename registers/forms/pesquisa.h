#pragma once
// The search dialogs (frmPesquisa, frmPesqGeral, frmPesqap) share this body:
// the table named in session.tabPesq, all its rows in one grid, a search by
// name or code, and the chosen code handed back in session.valorPesq
// (session.cancelaGrava when nothing was chosen).
#include "core/datastore.h"

#include <QDialog>

class Grade;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;

class PesquisaDialog : public QDialog {
    Q_OBJECT
public:
    // The column of the code comes first; the others follow as the grid shows
    // them, with the names the column choice offers.
    struct Coluna {
        QString campo, titulo;
        bool numerica = false;
    };

    void cmbColuna_Change();
    void cmdPesquisar_Click();
    void cmdOk_Click();
    void cmdCancela_Click();
    bool confirmou() const { return confirmou_; }

protected:
    // `fonte` is what the count and the list read ("Plano WHERE ..."; by
    // default the table session.tabPesq names), `ordem` the list's order (" Order By ...").
    PesquisaDialog(QWidget *parent, const QString &nome, const QString &connectionString, const QList<Coluna> &colunas,
                   const QString &fonte = {}, const QString &ordem = {});
    ~PesquisaDialog() override;
    void done(int result) override;

private:
    int colunaEscolhida() const;

    Connection cn_;
    QList<Coluna> colunas_;
    bool confirmou_ = false;
    QLabel *lblTitulo_;
    QComboBox *cmbColuna_;
    QLineEdit *txtPesq_;
    QPushButton *cmdPesquisar_, *cmdOk_, *cmdCancela_;
    Grade *tdbPesq_;
};

#include "core/forms/abrepesquisa.h"  // the road into these dialogs
