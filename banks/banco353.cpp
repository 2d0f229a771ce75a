// Santander: one receipt at a time, number of 8 digits with a modulo-11 digit.
#include "banks/bancos.h"

#include "banks/checkdigits.h"
#include "core/conversions.h"

Boleto Banco353(const ReciboBanco &r, const ParametrosBanco &p)
{
    Boleto b;
    const QString conta = bareText(p.cedente);
    const QString carteira = p.carteira;
    const QString nnumero = ZeroEsq(r.codigo, 8);          // mskNnumero
    b.dv = Modulo11Barra(nnumero).trimmed();               // lblDacR
    b.nrbco = nnumero + b.dv;
    b.campoLivre = QStringLiteral("90") + conta + QStringLiteral("00000") + b.nrbco.right(8) + QStringLiteral("0")
                   + carteira;
    b.fator = Fator_Vencimento(r.dvencto);

    // The bank's own bar code: the free field is filled to 25 with zeros when
    // shorter, and the general digit goes in at position 5.
    const QString livre = b.campoLivre.size() < 25 ? ZeroEsq(b.campoLivre, 25) : b.campoLivre;
    const QString s = QStringLiteral("3539") + QString::number(b.fator) + valorBarra(r.vtotal) + livre;
    b.barra = s.left(4) + Modulo11Barra(s) + s.mid(4);

    const QString t = QStringLiteral("3539") + livre.left(21) + QStringLiteral("0") + livre.right(3);
    b.linha = Monta_Linha(QStringLiteral("353"), t, b.barra.mid(4, 1), r.vtotal, b.fator);
    return b;
}
