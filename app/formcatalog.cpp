#include "app/formcatalog.h"

#include "accounting/forms/frmMov.h"
#include "accounting/forms/frmMovPesq.h"
#include "accounting/forms/frmMov_Atualiza.h"
#include "accounting/forms/frmMov_BalctP.h"
#include "accounting/forms/frmMovSaldini.h"
#include "accounting/forms/frmMovpo.h"
#include "banks/forms/filtrobanco.h"
#include "banks/forms/frmBcoDiversos.h"
#include "banks/forms/frmBcoSantander.h"
#include "banks/forms/frmBoleto.h"
#include "banks/forms/frmBoleto2.h"
#include "banks/forms/frmCriaTxt.h"
#include "banks/forms/frmGAbre_Arq.h"
#include "billing/forms/frmAjTxVcto.h"
#include "billing/forms/frmParametro.h"
#include "core/forms/formcatalog.h"
#include "registers/forms/frmAptos.h"
#include "registers/forms/frmBlocos.h"
#include "registers/forms/frmCpj.h"
#include "registers/forms/frmPesqGeral.h"
#include "registers/forms/frmPesqPlano.h"
#include "registers/forms/frmPesqap.h"
#include "registers/forms/frmPesquisa.h"
#include "registers/forms/frmTContas.h"
#include "registers/forms/frmTPlanoCtas.h"
#include "registers/forms/frmTTipAp.h"
#include "registers/forms/frmUsuarios.h"
#include "registers/forms/frmUsucli.h"

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
    registerForm<frmTPlanoCtas>(FormKind::Child);
    registerForm<frmPesqPlano>(FormKind::Dialog);
    registerForm<frmTContas>(FormKind::Child);
    registerForm<frmMov>(FormKind::Child);
    registerForm<frmMovPesq>(FormKind::Dialog);
    registerForm<frmMov_Atualiza>(FormKind::Child);
    registerForm<frmMovSaldini>(FormKind::Child);
    registerForm<frmMovpo>(FormKind::Child);
    registerForm<frmMov_BalctP>(FormKind::Child);
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
    // Registers, billing, banks, accounting, reporting and maintenance add
    // their forms below, one line each, and take them off formsToCome:
    //   registerForm<frmAptos>(FormKind::Child);
    registerForm<frmParametro>(FormKind::Dialog);
    registerForm<frmAjTxVcto>(FormKind::Child);
}

QStringList formsToCome()
{
    return {
        // Registers
        QStringLiteral("frmMobra"), QStringLiteral("frmMoradores"),
        QStringLiteral("frmVeiculos"), QStringLiteral("frmTpveiculos"),
        // Accounting
        QStringLiteral("frmRBalancetes"), QStringLiteral("frmRRazao"),
        QStringLiteral("frmRLanctos"),
        // Billing
        QStringLiteral("frmPesqfin"), QStringLiteral("frmRecBaixa"),
        QStringLiteral("frmSpool"), QStringLiteral("frmCarta_Cob"),
        QStringLiteral("frmTEventos"), QStringLiteral("frmRCondRec"), QStringLiteral("frmRCondCobr"),
        QStringLiteral("frmConBanco"), QStringLiteral("frmRRecAnual"), QStringLiteral("frmTEleitor"),
        // Reporting
        QStringLiteral("frmRelEnd"), QStringLiteral("frmRAptos"), QStringLiteral("frmRTelefonica"),
        QStringLiteral("frmRelatArq"), QStringLiteral("frmNormal"), QStringLiteral("frmPadrao"),
        // Maintenance
        QStringLiteral("frmAjuste"), QStringLiteral("frmAjUtilitarios"),
    };
}
