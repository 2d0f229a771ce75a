#include "billing/filtro.h"

#include <gtest/gtest.h>

namespace {

Filtro filtro(QChar situacao, std::initializer_list<CondicaoFiltro> condicoes)
{
    Filtro f;
    f.situacao = situacao;
    size_t i = 0;
    for (const CondicaoFiltro &c : condicoes)
        f.condicoes[i++] = c;
    return f;
}

const CondicaoFiltro kNumero{QStringLiteral("Nr.Recibo"), u'S', QStringLiteral("5"), QStringLiteral("12")};
const CondicaoFiltro kVencto{QStringLiteral("Data Vencimento"), u'D', QStringLiteral("01/03/2008"),
                             QStringLiteral("10/03/2008")};
const CondicaoFiltro kValor{QStringLiteral("Valor Líquido"), u'N', QStringLiteral("100.5"), QStringLiteral("900")};

} // namespace

// The three clauses of one filter: the saved one keeps dates as typed and
// numbers as typed; the search turns dates month first and pads receipt
// numbers; the print prefixes the table and drops an empty WHERE.
TEST(Filtro, ClausesOfTheSameConditions)
{
    struct Caso {
        Filtro f;
        QString salvo, pesquisa, impressao;
    };
    const Caso casos[] = {
        {filtro(u'A', {}), QStringLiteral(" WHERE  situacao = 'A'"), QStringLiteral(" WHERE  situacao = 'A'"),
         QStringLiteral("WHERE recibos.situacao = 'A'")},
        {filtro(u'T', {}), QString(), QString(), QString()},
        {filtro(u'B', {kNumero, kVencto}),
         QStringLiteral(" WHERE  situacao = 'B' AND codigo >= '5' AND codigo <= '12'  AND dvencto >= #01/03/2008# AND "
                        "dvencto <= #10/03/2008# "),
         QStringLiteral(" WHERE  situacao = 'B' AND codigo >= '000005' AND codigo <= '000012'  AND dvencto >= "
                        "#03/01/2008# And dvencto <= #03/10/2008# "),
         QStringLiteral("WHERE recibos.situacao = 'B' AND Recibos.codigo >= '000005' AND Recibos.codigo <= '000012' AND "
                        "Recibos.dvencto >= #03/01/2008# And Recibos.dvencto <= #03/10/2008#")},
        {filtro(u'T', {kValor}), QStringLiteral(" WHERE vtotal >= 100.5 AND vtotal <= 900"),
         QStringLiteral(" WHERE vtotal >= 100.5 AND vtotal <= 900"),
         QStringLiteral("WHERE Recibos.vtotal >= 100.5 AND Recibos.vtotal <= 900")},
    };
    for (const Caso &c : casos) {
        EXPECT_EQ(clausulaFiltro(c.f), c.salvo);
        EXPECT_EQ(clausulaPesquisa(c.f), c.pesquisa);
        EXPECT_EQ(clausulaImpressao(c.f), c.impressao);
    }
}

TEST(Filtro, ConditionsTheStatementsCannotCarryAreRefused)
{
    const CondicaoFiltro semAte{QStringLiteral("Data Emissão"), u'D', QStringLiteral("01/02/2008"),
                                QStringLiteral("__/__/____")};
    const CondicaoFiltro aspa{QStringLiteral("Apartamento"), u'S', QStringLiteral("01'"), QStringLiteral("02")};
    EXPECT_EQ(confereFiltro(filtro(u'A', {kNumero, semAte})), QStringLiteral("Informe os valores De e Até da condição 2 !"));
    EXPECT_EQ(confereFiltro(filtro(u'A', {aspa})), QStringLiteral("Informe os valores De e Até da condição 1 !"));
    EXPECT_EQ(confereFiltro(filtro(u'A', {kNumero, kVencto, kValor})), std::nullopt);
}
