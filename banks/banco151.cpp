// Nossa Caixa: the number's digit weighs the form-level agency field, which
// is empty until a selection print has run on the form.
#include "banks/bancos.h"

#include "banks/checkdigits.h"
#include "core/conversions.h"

Boleto Banco151(const ReciboBanco &r, const ParametrosBanco &p)
{
    Boleto b;
    const QString carteira = ZeroEsq(p.carteiraNua(), 2);
    const QString conta = digitos(p.cedente);
    const double valorCarteira = val(carteira);
    const QString prefixo = (valorCarteira == 1 || valorCarteira == 2) ? QStringLiteral("00") : QStringLiteral("99");
    const QString numero = prefixo + ZeroEsq(r.codigo, 7);
    b.dv = Modulo10Pesos(p.agenciaForm + carteira + QStringLiteral("0") + conta + numero);
    b.nrbco = numero + b.dv;
    QString f = QStringLiteral("9") + ZeroEsq(r.codigo, 7) + b.dv + p.agencia + carteira.right(1) + conta.left(6)
                + QStringLiteral("151");
    f += Modulo10(f);
    f += Modulo11Direto(f);
    b.campoLivre = f;
    completaBoleto(b, QStringLiteral("151"), r);
    return b;
}
