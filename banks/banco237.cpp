// Bradesco: wallets 06 and 09.
#include "banks/bancos.h"

#include "banks/checkdigits.h"
#include "core/conversions.h"

Boleto Banco237(const ReciboBanco &r, const ParametrosBanco &p)
{
    Boleto b;
    const QString cod = ZeroEsq(r.codigo, 6);
    const QString w = p.carteira.left(2);
    const QString n = ZeroEsq(cod, 11);
    b.dv = Modulo11Letra(w + n);
    b.nrbco = w + QStringLiteral("/") + n + QStringLiteral("-") + b.dv;
    const QString base = n + b.dv;
    // "00" stands for the two high digits of the number, zero for a receipt of six.
    b.campoLivre = ZeroEsq(p.agencia, 4) + w + QStringLiteral("00") + base.mid(2, 9) + p.cedente.left(7)
                   + QStringLiteral("0");
    completaBoleto(b, QStringLiteral("237"), r);
    return b;
}
