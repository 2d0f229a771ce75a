#pragma once
// Opening balances: typed into the year's opening column (sf00) or into the
// closing column of a month, and kept in Saldini so that they can be loaded
// back into Plano later.
#include "core/datastore.h"

#include <QWidget>

class DateField;
class QCheckBox;
class QPushButton;
class QTableWidget;

class frmMovSaldini : public QWidget {
    Q_OBJECT
public:
    explicit frmMovSaldini(QWidget *parent = nullptr);
    ~frmMovSaldini() override;

    void chkAnoCheio_LostFocus();
    void cmdSomar_Click();
    void cmdGravar_Click();
    void cmdCarregaS_Click();
    void cmdImprimir_Click();

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    void escolheColuna();
    void enche();
    // "mm/dd/yyyy" of the marker date: day 11 with the box ticked, day 1 without.
    QString mesano() const;

    Connection cn_;
    QString coluna_;
    DateField *tdbAnomes_;
    QCheckBox *chkAnoCheio_;
    QTableWidget *tdgPlano_;
    QPushButton *cmdGravar_, *cmdSair_;
};
