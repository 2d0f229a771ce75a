// Every register of the system, for the checks that read all their
// descriptions. A new register adds its line here.
#include "registers/forms/frmAptos.h"
#include "registers/forms/frmBlocos.h"
#include "registers/forms/frmCpj.h"
#include "registers/forms/frmTContas.h"
#include "registers/forms/frmTPlanoCtas.h"
#include "registers/forms/frmTTipAp.h"
#include "registers/forms/frmUsuarios.h"
#include "registers/forms/frmUsucli.h"

QList<const Registro *> todosRegistros()
{
    return {&frmBlocos::descricao(), &frmTTipAp::descricao(), &frmCpj::descricao(), &frmUsucli::descricao(),
            &frmUsuarios::descricao(), &frmTPlanoCtas::descricao(), &frmTContas::descricao(), &frmAptos::descricao()};
}
