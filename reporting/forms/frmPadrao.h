#pragma once
// The standard label: four typed lines printed on every label of as many
// sheets as asked (EtiqPadr.rpt). The lines and the number of sheets are kept
// in the one row of Padrao.
#include "core/datastore.h"

#include <QWidget>

class QLineEdit;

class frmPadrao : public QWidget {
    Q_OBJECT
public:
    explicit frmPadrao(QWidget *parent = nullptr);
    ~frmPadrao() override;

    void cmdImprimir_Click();

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    Connection cn_;
    QLineEdit *txtNvias_;
    QList<QLineEdit *> txtL_;
};
