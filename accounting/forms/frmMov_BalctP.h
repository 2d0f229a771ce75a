#pragma once
// The chart with the figures of one month, straight from the monthly columns
// of Plano: opening balance, debits, credits and closing balance of every
// account, on the screen and printed as Balancete.rpt.
#include "core/datastore.h"

#include <QWidget>

class DateField;
class Grade;
class QPushButton;

class frmMov_BalctP : public QWidget {
    Q_OBJECT
public:
    explicit frmMov_BalctP(QWidget *parent = nullptr);
    ~frmMov_BalctP() override;

    void tdbAnomes_LostFocus();
    void cmdImprimir_Click();

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    void encheLista();

    Connection cn_;
    int mes_ = 1;
    DateField *tdbAnomes_;
    Grade *tdbPlano_;
    QPushButton *cmdTrocames_, *cmdSair_;
};
