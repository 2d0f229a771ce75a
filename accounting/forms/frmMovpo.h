#pragma once
// The budget forecast: the planned amount of each account for one month,
// typed straight into the month's budget column of Plano (po + yymm).
#include "core/datastore.h"

#include <QWidget>

class DateField;
class QPushButton;
class QTableWidget;

class frmMovpo : public QWidget {
    Q_OBJECT
public:
    explicit frmMovpo(QWidget *parent = nullptr);
    ~frmMovpo() override;

    void tdbAnomes_LostFocus();
    void cmdSomar_Click();
    void cmdGravar_Click();
    void cmdImprimir_Click();

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    bool enche();

    Connection cn_;
    QString sufixo_;  // yymm
    DateField *tdbAnomes_;
    QTableWidget *tdgPlano_;
    QPushButton *cmdGravar_, *cmdSair_;
};
