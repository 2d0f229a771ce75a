#pragma once
// Receipts sent to one bank, one line each (ConBanco.rpt).
#include "core/datastore.h"

#include <QWidget>
#include <memory>

namespace Ui { class frmConBanco; }

class frmConBanco : public QWidget {
    Q_OBJECT
public:
    explicit frmConBanco(QWidget *parent = nullptr);
    ~frmConBanco() override;

    void cmdImprimir_Click();

private:
    std::unique_ptr<Ui::frmConBanco> ui_;
    Connection cn_;
};
