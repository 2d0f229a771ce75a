#pragma once
// Fees and due days of many apartments at once, for all or by apartment type,
// and the repair of the totals of stored receipts.
#include "core/datastore.h"

#include <QWidget>
#include <memory>

namespace Ui {
class frmAjTxVcto;
}

class frmAjTxVcto : public QWidget {
    Q_OBJECT
public:
    explicit frmAjTxVcto(QWidget *parent = nullptr);
    ~frmAjTxVcto() override;

    void cmdAjustar_Click();
    void cmdAjTipAp_Click();
    void cmdRecalT_Click();
    void cmdSair_Click();

private:
    std::unique_ptr<Ui::frmAjTxVcto> ui_;
    Connection cn_;
};
