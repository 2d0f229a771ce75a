#pragma once
// The receipts emitted in a year, one line each (RAnual.rpt).
#include "core/datastore.h"

#include <QWidget>
#include <memory>

namespace Ui { class frmRRecAnual; }

class frmRRecAnual : public QWidget {
    Q_OBJECT
public:
    explicit frmRRecAnual(QWidget *parent = nullptr);
    ~frmRRecAnual() override;

    void cmdImprimir_Click();

private:
    std::unique_ptr<Ui::frmRRecAnual> ui_;
    Connection cn_;
};
