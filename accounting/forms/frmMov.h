#pragma once
// The journal of the active condominium: one debit account, one credit
// account and one amount an entry, in the table of the active year (Mov08 for
// 2008). Entries are typed by keyboard alone: Enter goes through the fields,
// Enter on Gravar saves, and the focus then stands on Novo for the next entry.
#include "core/datastore.h"

#include <QDate>
#include <QWidget>

class DateField;
class MaskEdit;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;

class frmMov : public QWidget {
    Q_OBJECT
public:
    explicit frmMov(QWidget *parent = nullptr);
    ~frmMov() override;

    void tdbAno_LostFocus();
    void mskCodigo_LostFocus();
    void cmdNovo_Click();
    void cmdGravar_Click();
    void cmdApagar_Click();
    void cmdCancelar_Click();
    void cmdPesquisar_Click();
    void cmdPesqPCta_Click();
    void cmdTrocaano_Click();

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    // States: 4 choosing the year, 1 browsing, 2 an entry shown, 3 a new entry.
    void TrocaEstado(int estado);
    void reiniciaMascaras();
    void passoDoFoco();
    void mostraConta(MaskEdit *campo, QLabel *rotulo, const QString &naoAchou);
    void confereValor();
    QString nomeDaConta(const QString &codigo);

    Connection cn_;
    QString anoAtivo_;
    QString tabela_;
    qint16 proximo_ = 1;
    QDate dataPadrao_;
    bool novo_ = false;
    bool anoConfirmado_ = false;

    QGroupBox *fraAtiva_;
    DateField *tdbAno_, *tdbData_;
    MaskEdit *mskCodigo_, *mskDeb_, *mskCre_;
    QLineEdit *txtNrDoc_, *txtHist_, *tdbVlrcont_;
    QLabel *lblDebito_, *lblCredito_;
    QPushButton *cmdNovo_, *cmdGravar_, *cmdCancelar_, *cmdApagar_, *cmdPesquisar_, *cmdPesqPCta_, *cmdTrocaano_,
        *cmdSair_;
};
