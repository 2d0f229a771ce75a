#include "app/formcatalog.h"

#include "core/forms/formcatalog.h"

void registerAllForms()
{
    registerCoreForms();
    // Registers, billing, banks, accounting, reporting and maintenance add
    // their forms below, one line each:
    //   registerForm<frmBlocos>(QStringLiteral("frmBlocos"), FormKind::Child);
}
