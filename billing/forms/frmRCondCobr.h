#pragma once
// Receipts of one place of collection summed by unit (ConCob.rpt).
#include "core/datastore.h"

#include <QWidget>
#include <memory>

namespace Ui { class frmRCondCobr; }

class frmRCondCobr : public QWidget {
    Q_OBJECT
public:
    explicit frmRCondCobr(QWidget *parent = nullptr);
    ~frmRCondCobr() override;

    void cmdImprimir_Click();

private:
    std::unique_ptr<Ui::frmRCondCobr> ui_;
    Connection cn_;
};
