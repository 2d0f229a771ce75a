#include "app/formcatalog.h"

#include "accounting/forms/frmMov.h"
#include "accounting/forms/frmMovPesq.h"
#include "accounting/forms/frmMov_Atualiza.h"
#include "accounting/forms/frmMov_BalctP.h"
#include "accounting/forms/frmMovSaldini.h"
#include "accounting/forms/frmMovpo.h"
#include "accounting/forms/frmRBalancetes.h"
#include "accounting/forms/frmRLanctos.h"
#include "accounting/forms/frmRRazao.h"
#include "banks/forms/filtrobanco.h"
#include "banks/forms/frmBcoDiversos.h"
#include "banks/forms/frmBcoSantander.h"
#include "banks/forms/frmBoleto.h"
#include "banks/forms/frmBoleto2.h"
#include "banks/forms/frmCriaTxt.h"
#include "banks/forms/frmGAbre_Arq.h"
#include "billing/forms/frmAjTxVcto.h"
#include "billing/forms/frmCarta_Cob.h"
#include "billing/forms/frmConBanco.h"
#include "billing/forms/frmFiltro.h"
#include "billing/forms/frmParametro.h"
#include "billing/forms/frmRCondCobr.h"
#include "billing/forms/frmRCondRec.h"
#include "billing/forms/frmRRecAnual.h"
#include "billing/forms/frmRecibos.h"
#include "billing/forms/frmTEleitor.h"
#include "billing/forms/frmPesqfin.h"
#include "billing/forms/frmPesqRec.h"
#include "billing/forms/frmPesqRecSel.h"
#include "billing/forms/frmRecBaixa.h"
#include "billing/forms/frmSpool.h"
#include "core/forms/formcatalog.h"
#include "maintenance/forms/frmAjUtilitarios.h"
#include "maintenance/forms/frmAjuste.h"
#include "registers/forms/frmAptos.h"
#include "registers/forms/frmBlocos.h"
#include "registers/forms/frmCpj.h"
#include "registers/forms/frmMobra.h"
#include "registers/forms/frmMoradores.h"
#include "registers/forms/frmMoradores2.h"
#include "registers/forms/frmPesqEv.h"
#include "registers/forms/frmTEventos.h"
#include "registers/forms/frmTpveiculos.h"
#include "registers/forms/frmVeiculos.h"
#include "registers/forms/frmPesqGeral.h"
#include "registers/forms/frmPesqPlano.h"
#include "registers/forms/frmPesqap.h"
#include "registers/forms/frmPesquisa.h"
#include "registers/forms/frmTContas.h"
#include "registers/forms/frmTPlanoCtas.h"
#include "registers/forms/frmTTipAp.h"
#include "registers/forms/frmUsuarios.h"
#include "registers/forms/frmUsucli.h"
#include "reporting/forms/frmMoradPa.h"
#include "reporting/forms/frmNormal.h"
#include "reporting/forms/frmPadrao.h"
#include "reporting/forms/frmRAptos.h"
#include "reporting/forms/frmRTelefonica.h"
#include "reporting/forms/frmRelEnd.h"
#include "reporting/forms/frmRelatArq.h"
#include "reporting/forms/frmVecPa.h"

void registerAllForms()
{
    registerCoreForms();
    registerForm<frmBlocos>(FormKind::Child);
    registerForm<frmTTipAp>(FormKind::Child);
    registerForm<frmUsuarios>(FormKind::Child);
    registerForm<frmUsucli>(FormKind::Child);
    registerForm<frmCpj>(FormKind::Child);
    registerForm<frmPesquisa>(FormKind::Dialog);
    registerForm<frmPesqGeral>(FormKind::Dialog);
    registerForm<frmPesqap>(FormKind::Dialog);
    registerForm<frmMoradores>(FormKind::Child);
    registerForm<frmMoradores2>(FormKind::Dialog);
    registerForm<frmVeiculos>(FormKind::Child);
    registerForm<frmTpveiculos>(FormKind::Child);
    registerForm<frmMobra>(FormKind::Child);
    registerForm<frmTEventos>(FormKind::Child);
    registerForm<frmPesqEv>(FormKind::Dialog);
    registerForm<frmTPlanoCtas>(FormKind::Child);
    registerForm<frmPesqPlano>(FormKind::Dialog);
    registerForm<frmTContas>(FormKind::Child);
    registerForm<frmMov>(FormKind::Child);
    registerForm<frmMovPesq>(FormKind::Dialog);
    registerForm<frmMov_Atualiza>(FormKind::Child);
    registerForm<frmMovSaldini>(FormKind::Child);
    registerForm<frmMovpo>(FormKind::Child);
    registerForm<frmMov_BalctP>(FormKind::Child);
    registerForm<frmRBalancetes>(FormKind::Child);
    registerForm<frmRRazao>(FormKind::Child);
    registerForm<frmRLanctos>(FormKind::Child);
    registerForm<frmBcoDiversos>(FormKind::Child);
    registerForm<frmCriaTxt>(FormKind::Child);
    registerForm<frmGAbre_Arq>(FormKind::Dialog);
    registerForm<frmBoleto>(FormKind::Child);
    // Opened by no menu entry: in the catalog for the tour.
    registerForm<frmBcoSantander>(FormKind::Child);
    registerForm<frmBoleto2>(FormKind::Child);
    registerForm<frmFiltroBco>(FormKind::Child);
    registerForm<frmFiltroImpBoleto>(FormKind::Child);
    registerForm<frmAptos>(FormKind::Child);
    registerForm<frmRAptos>(FormKind::Child);
    registerForm<frmRelEnd>(FormKind::Child);
    registerForm<frmRTelefonica>(FormKind::Child);
    registerForm<frmMoradPa>(FormKind::Child);
    registerForm<frmVecPa>(FormKind::Child);
    registerForm<frmNormal>(FormKind::Child);
    registerForm<frmPadrao>(FormKind::Child);
    registerForm<frmRelatArq>(FormKind::Child);
    registerForm<frmFiltro>(FormKind::Dialog);
    registerForm<frmPesqfin>(FormKind::Child);
    registerForm<frmPesqRec>(FormKind::Dialog);
    registerForm<frmPesqRecSel>(FormKind::Dialog);
    registerForm<frmRecBaixa>(FormKind::Child);
    registerForm<frmSpool>(FormKind::Child);
    // Registers, billing, banks, accounting, reporting and maintenance add
    // their forms below, one line each, and take them off formsToCome:
    //   registerForm<frmAptos>(FormKind::Child);
    registerForm<frmParametro>(FormKind::Dialog);
    registerForm<frmAjTxVcto>(FormKind::Child);
    registerForm<frmRecibos>(FormKind::Child);
    registerForm<frmCarta_Cob>(FormKind::Child);
    registerForm<frmTEleitor>(FormKind::Child);
    registerForm<frmRCondRec>(FormKind::Child);
    registerForm<frmRCondCobr>(FormKind::Child);
    registerForm<frmConBanco>(FormKind::Child);
    registerForm<frmRRecAnual>(FormKind::Child);
    registerForm<frmAjuste>(FormKind::Child);
    registerForm<frmAjUtilitarios>(FormKind::Child);
}

QStringList formsToCome()
{
    return {
    };
}
