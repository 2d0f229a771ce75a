#include "app/formcatalog.h"

#include "core/forms/formcatalog.h"
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
    registerForm<frmBlocos>(QStringLiteral("frmBlocos"), FormKind::Child);
    registerForm<frmTTipAp>(QStringLiteral("frmTTipAp"), FormKind::Child);
    registerForm<frmUsuarios>(QStringLiteral("frmUsuarios"), FormKind::Child);
    registerForm<frmUsucli>(QStringLiteral("frmUsucli"), FormKind::Child);
    registerForm<frmCpj>(QStringLiteral("frmCpj"), FormKind::Child);
    registerForm<frmPesquisa>(QStringLiteral("frmPesquisa"), FormKind::Dialog);
    registerForm<frmPesqGeral>(QStringLiteral("frmPesqGeral"), FormKind::Dialog);
    registerForm<frmPesqap>(QStringLiteral("frmPesqap"), FormKind::Dialog);
    // Registers, billing, banks, accounting, reporting and maintenance add
    // their forms below, one line each:
    //   registerForm<frmBlocos>(QStringLiteral("frmBlocos"), FormKind::Child);
}
