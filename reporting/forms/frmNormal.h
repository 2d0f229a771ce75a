#pragma once
// Address labels, one for each owner, tenant, firm or worker (EtiqNor.rpt).
#include "core/datastore.h"

#include <QWidget>

class frmNormal : public QWidget {
    Q_OBJECT
public:
    explicit frmNormal(QWidget *parent = nullptr);
    ~frmNormal() override;

    void cmdImprimir_Click();

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    Connection cn_;
};
