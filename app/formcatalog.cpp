#include "app/formcatalog.h"

#include "core/forms/formcatalog.h"
#include "registers/forms/frmBlocos.h"
#include "registers/forms/frmTTipAp.h"

void registerAllForms()
{
    registerCoreForms();
    registerForm<frmBlocos>(QStringLiteral("frmBlocos"), FormKind::Child);
    registerForm<frmTTipAp>(QStringLiteral("frmTTipAp"), FormKind::Child);
    // Registers, billing, banks, accounting, reporting and maintenance add
    // their forms below, one line each:
    //   registerForm<frmBlocos>(QStringLiteral("frmBlocos"), FormKind::Child);
}
