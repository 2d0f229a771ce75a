#pragma once
// The bank form: the collection parameters of the condominium (first tab),
// the slip's instructions and statement text (second), and the selection of
// receipts with the computation of the slips, the remittance file and the
// prints (third).
#include "banks/bcodiversos.h"
#include "banks/boletoimpressao.h"
#include "banks/calcbarra.h"
#include "core/datastore.h"

#include <QWidget>
#include <memory>

namespace Ui {
class frmBcoDiversos;
}

class frmBcoDiversos : public QWidget {
    Q_OBJECT
public:
    explicit frmBcoDiversos(QWidget *parent = nullptr);
    ~frmBcoDiversos() override;

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    void carregaParametros();
    void habilitaPorBanco();
    static QString nomeDoBanco(const QString &banco);
    void carregaEspecies(const QString &codigoAtual);
    TelaBanco tela() const;
    ParametrosBanco parametrosBanco() const;
    ParametrosImpressao parametrosImpressao();
    void mostraProgresso(int feitos, int total);

    void txtRBanco_LostFocus();
    void mskCarteiraR_Change();
    void mskCgcR_LostFocus();
    void cmdPesqBco_Click();
    void cmdPastaR_Click();
    bool cmdGravaR_Click();
    void cmdTrocatxt_Click();
    void cmdCarregatxt_Click();
    void cmbCampo_Click();
    void cmdSelRec_Click();
    void cmdLimpaPesq_Click();
    void cmdCalcBarra_Click();
    void cmdCalcBarraG_Click();
    void cmdGerarR_Click();
    void cmdImprimir_Click();
    void cmdImprTot_Click();

    std::unique_ptr<Ui::frmBcoDiversos> ui_;
    Connection cn_;
    QString bancoMostrado_;   // the code whose name and buttons are shown
    QString where_;           // the selection's WHERE and ORDER BY (cmdSelRec)
    FormCalcBarra calc_;      // the working fields of the computation and its selection statement
    QString agenciaForm_;     // bank 151: the agency the selection print keeps
};
