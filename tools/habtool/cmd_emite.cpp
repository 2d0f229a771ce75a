// habtool emite FILE [--sim]: the automatic run with the stored parameters.
#include "billing/emissao.h"
#include "tools/habtool/billing_cmd.h"
#include "tools/habtool/habtool.h"

static int cmdEmite(const QStringList &argumentos)
{
    QStringList args = argumentos;
    const bool sim = tiraSim(args);
    if (args.size() != 1)
        return 2;
    if (!bancoPresente(args[0]))
        return kArgumentoInvalido;
    ArquivoCondominio arq(args[0], sim);
    const ParametrosEmissao p = leParametros(arq.con);
    // The check that saving the parameters makes: after an interrupted run
    // the stored last number is behind the receipts, and numbering on from
    // it would repeat numbers.
    if (const auto erro = confereUltimoRecibo(arq.con, p.fnreci)) {
        err(erro->tipo + QStringLiteral(": ") + erro->mensagem);
        return 1;
    }
    const ResultadoEmissao r = emissaoAutomatica(arq.con, p);
    out(QStringLiteral("emitidos %1").arg(r.emitidos));
    out(QStringLiteral("fnreci %1").arg(r.fnreci.isEmpty() ? p.fnreci : r.fnreci));
    return r.interrompida ? 1 : 0;
}

static const bool registrado =
    registerCommand("emite", "FILE [--sim]", "emissão automática com os parâmetros gravados", cmdEmite);
