#pragma once
// Voter's cards for the assembly, for one unit or all; a unit with open
// receipts due up to the date given cannot vote.
#include "core/datastore.h"

#include <QWidget>
#include <memory>

namespace Ui { class frmTEleitor; }

class frmTEleitor : public QWidget {
    Q_OBJECT
public:
    explicit frmTEleitor(QWidget *parent = nullptr);
    ~frmTEleitor() override;

    void cmdImprimir_Click();

private:
    std::unique_ptr<Ui::frmTEleitor> ui_;
    Connection cn_;
};
