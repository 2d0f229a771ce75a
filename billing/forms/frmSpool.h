#pragma once
// Receipts of a range of numbers printed again (second copies, or what a
// spooled emission left unprinted).
#include "core/datastore.h"

#include <QWidget>
#include <memory>

namespace Ui { class frmSpool; }

class frmSpool : public QWidget {
    Q_OBJECT
public:
    explicit frmSpool(QWidget *parent = nullptr);
    ~frmSpool() override;

    void cmdImprimir_Click();

private:
    std::unique_ptr<Ui::frmSpool> ui_;
    Connection cn_;
};
