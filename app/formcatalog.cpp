#include "app/formcatalog.h"

#include "billing/forms/frmAjTxVcto.h"
#include "billing/forms/frmFiltro.h"
#include "billing/forms/frmParametro.h"
#include "billing/forms/frmRecibos.h"
#include "billing/forms/frmPesqfin.h"
#include "billing/forms/frmPesqRec.h"
#include "billing/forms/frmPesqRecSel.h"
#include "billing/forms/frmRecBaixa.h"
#include "billing/forms/frmSpool.h"
#include "core/forms/formcatalog.h"
#include "registers/forms/frmAptos.h"
#include "registers/forms/frmBlocos.h"
#include "registers/forms/frmCpj.h"
#include "registers/forms/frmPesqGeral.h"
#include "registers/forms/frmPesqap.h"
#include "registers/forms/frmPesquisa.h"
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
    registerForm<frmFiltro>(FormKind::Dialog);
    registerForm<frmPesqfin>(FormKind::Child);
    registerForm<frmPesqRec>(FormKind::Dialog);
    registerForm<frmPesqRecSel>(FormKind::Dialog);
    registerForm<frmRecBaixa>(FormKind::Child);
    registerForm<frmSpool>(FormKind::Child);
    registerForm<frmAptos>(FormKind::Child);
    // Registers, billing, banks, accounting, reporting and maintenance add
    // their forms below, one line each, and take them off formsToCome:
    //   registerForm<frmAptos>(FormKind::Child);
    registerForm<frmParametro>(FormKind::Dialog);
    registerForm<frmAjTxVcto>(FormKind::Child);
    registerForm<frmRecibos>(FormKind::Child);
}

QStringList formsToCome()
{
    return {
        // Registers
        QStringLiteral("frmMobra"), QStringLiteral("frmMoradores"),
        QStringLiteral("frmVeiculos"), QStringLiteral("frmTpveiculos"),
        // Accounting
        QStringLiteral("frmMovpo"), QStringLiteral("frmMov_Atualiza"), QStringLiteral("frmMov"),
        QStringLiteral("frmMovSaldini"), QStringLiteral("frmMov_BalctP"), QStringLiteral("frmTContas"),
        QStringLiteral("frmTPlanoCtas"), QStringLiteral("frmRBalancetes"), QStringLiteral("frmRRazao"),
        QStringLiteral("frmRLanctos"),
        // Billing
        QStringLiteral("frmCarta_Cob"),
        QStringLiteral("frmTEventos"), QStringLiteral("frmRCondRec"), QStringLiteral("frmRCondCobr"),
        QStringLiteral("frmConBanco"), QStringLiteral("frmRRecAnual"), QStringLiteral("frmTEleitor"),
        // Banks
        QStringLiteral("frmBcoDiversos"), QStringLiteral("frmBoleto"), QStringLiteral("frmCriaTxt"),
        // Reporting
        QStringLiteral("frmRelEnd"), QStringLiteral("frmRAptos"), QStringLiteral("frmRTelefonica"),
        QStringLiteral("frmRelatArq"), QStringLiteral("frmNormal"), QStringLiteral("frmPadrao"),
        // Maintenance
        QStringLiteral("frmAjuste"), QStringLiteral("frmAjUtilitarios"),
    };
}
