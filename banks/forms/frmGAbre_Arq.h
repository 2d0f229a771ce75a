#pragma once
// The choice of the statement's text file: drive, folder and file lists and
// the file type. A valid choice goes to session.arqway and the dialog is
// accepted; anything else leaves session.arqway as it was.
#include <QDialog>
#include <memory>

namespace Ui {
class frmGAbre_Arq;
}

class frmGAbre_Arq : public QDialog {
    Q_OBJECT
public:
    explicit frmGAbre_Arq(QWidget *parent = nullptr);
    ~frmGAbre_Arq() override;

private:
    void mostraPasta(const QString &pasta);
    void driDrive_Change();
    void cmdOk_Click();

    std::unique_ptr<Ui::frmGAbre_Arq> ui_;
    QString pasta_;
    int unidade_ = 0;
};
