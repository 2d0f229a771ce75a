// Slips per second for each bank: 100,000 receipts through the bank's rule
// (number, free field, bar code and typed line).
#include "banks/bancos.h"

#include <benchmark/benchmark.h>

namespace {
ParametrosBanco parametrosDe(const QString &banco)
{
    ParametrosBanco p;
    p.banco = banco;
    p.agencia = QStringLiteral("0123");
    p.cedente = banco == u"104" ? QStringLiteral("12345678") : QStringLiteral("123456-7");
    p.convenio = banco == u"104" ? QStringLiteral("870") : QStringLiteral("1234567");
    p.carteira = banco == u"001" ? QStringLiteral("18_") : banco == u"237" ? QStringLiteral("06_")
                 : banco == u"341" ? QStringLiteral("109") : banco == u"409" ? QStringLiteral("___")
                 : banco == u"353" ? QStringLiteral("102") : QStringLiteral("01_");
    if (banco == u"353" || banco == u"341")
        p.cedente = QStringLiteral("12345-6");
    p.agenciaForm = p.agencia;
    return p;
}

void slips(benchmark::State &state, const char *banco)
{
    const QString code = QString::fromLatin1(banco);
    const ParametrosBanco p = parametrosDe(code);
    constexpr int kSlips = 100000;
    for (auto _ : state) {
        int32_t contador = 10000000;
        for (int i = 1; i <= kSlips; ++i) {
            const ReciboBanco r{QString::number(i).rightJustified(6, u'0'), Money::fromUnits(1234500 + i * 100),
                                QDate(2006, 1, 1).addDays(i % 900)};
            benchmark::DoNotOptimize(calculaBoleto(code, r, p, contador++));
        }
    }
    state.SetItemsProcessed(state.iterations() * kSlips);
}
} // namespace

BENCHMARK_CAPTURE(slips, banco001, "001")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(slips, banco104, "104")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(slips, banco237, "237")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(slips, banco409, "409")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(slips, banco341, "341")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(slips, banco422, "422")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(slips, banco151, "151")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(slips, banco353, "353")->Unit(benchmark::kMillisecond);

BENCHMARK_MAIN();
