// habtool boleto BANK key=value...: one receipt's slip by the rule of a bank.
#include "tools/habtool/habtool.h"

#include "banks/bancos.h"
#include "core/conversions.h"

#include <map>

namespace {
int cmdBoleto(const QStringList &args)
{
    if (args.isEmpty()) {
        err(QStringLiteral("uso: habtool boleto BANCO codigo=... vtotal=... dvencto=dd/mm/aaaa agencia=... "
                           "cedente=... convenio=... carteira=... [nnr=...] [agenciaform=...]"));
        return 2;
    }
    static const QStringList keys{"codigo",   "vtotal",   "dvencto", "agencia",    "cedente",
                                  "convenio", "carteira", "nnr",     "agenciaform"};
    std::map<QString, QString> v;
    for (const QString &arg : args.mid(1)) {
        const qsizetype eq = arg.indexOf(u'=');
        const QString key = arg.left(eq);
        if (eq < 0 || !keys.contains(key)) {
            err(QStringLiteral("argumento desconhecido: ") + arg);
            return 2;
        }
        v[key] = arg.mid(eq + 1);
    }
    const QString banco = args[0];
    ReciboBanco r;
    r.codigo = v[QStringLiteral("codigo")];
    // A key left out is empty: no value, no due date.
    if ((!v[QStringLiteral("vtotal")].isEmpty() && !leValor(QStringLiteral("vtotal"), v[QStringLiteral("vtotal")], r.vtotal)) ||
        (!v[QStringLiteral("dvencto")].isEmpty() && !leData(QStringLiteral("dvencto"), v[QStringLiteral("dvencto")], r.dvencto)))
        return kArgumentoInvalido;
    ParametrosBanco p;
    p.banco = banco;
    p.agencia = v[QStringLiteral("agencia")];
    p.cedente = v[QStringLiteral("cedente")];
    p.convenio = v[QStringLiteral("convenio")];
    p.carteira = v[QStringLiteral("carteira")];
    p.agenciaForm = v[QStringLiteral("agenciaform")];

    // The receipt is the first and only row of the selection.
    const int32_t contador = contador422Inicial(v[QStringLiteral("nnr")], &r.codigo);
    const Boleto b = calculaBoleto(banco, r, p, contador);
    if (!b.recusa.isEmpty()) {
        err(b.recusa);
        return 1;
    }
    out(QStringLiteral("nrbco=") + b.nrbco);
    out(QStringLiteral("campolivre=") + b.campoLivre);
    out(QStringLiteral("barrabco=") + b.barra);
    out(QStringLiteral("lindigbco=") + b.linha);
    if (banco == u"422")
        out(QStringLiteral("ritaunn=") + ritauNn422(b.nrbco));
    return 0;
}

const bool registered = registerCommand(
    "boleto",
    "BANCO codigo=... vtotal=... dvencto=dd/mm/aaaa agencia=... cedente=... convenio=... carteira=... [nnr=...] "
    "[agenciaform=...]",
    "numero, campo livre, codigo de barras e linha digitavel de um recibo", cmdBoleto);
} // namespace
