// Every register of the system, for the checks that read all their
// descriptions. A new register adds its line here.
#include "registers/forms/frmAptos.h"
#include "registers/forms/frmBlocos.h"
#include "registers/forms/frmCpj.h"
#include "registers/forms/frmMobra.h"
#include "registers/forms/frmMoradores.h"
#include "registers/forms/frmTEventos.h"
#include "registers/forms/frmTpveiculos.h"
#include "registers/forms/frmVeiculos.h"
#include "registers/forms/frmTContas.h"
#include "registers/forms/frmTPlanoCtas.h"
#include "registers/forms/frmTTipAp.h"
#include "registers/forms/frmUsuarios.h"
#include "registers/forms/frmUsucli.h"

QList<const Registro *> todosRegistros()
{
    return {&frmBlocos::descricao(), &frmTTipAp::descricao(), &frmCpj::descricao(), &frmUsucli::descricao(),
            &frmUsuarios::descricao(), &frmMoradores::descricao(), &frmVeiculos::descricao(),
            &frmTpveiculos::descricao(), &frmMobra::descricao(), &frmTEventos::descricao(),
            &frmTPlanoCtas::descricao(), &frmTContas::descricao(), &frmAptos::descricao()};
}
