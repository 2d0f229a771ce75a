// Accounting engine on a condominium file of realistic size: the balance
// update of a chart of 500 accounts with a month of 50.000 entries, and the
// ledger's work table over a year of 50.000 entries.
#include "accounting/atualiza.h"
#include "accounting/razao.h"
#include "core/datastore.h"
#include "core/session.h"

#include <QFile>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>
#include <cstdint>

namespace {

constexpr int kGrupos = 50;              // synthetic accounts nn.
constexpr int kMembros = 9;              // analytic accounts per group: 500 in all
constexpr int kLancamentos = 50000;

QString codigo(int grupo, int membro)
{
    return QStringLiteral("%1.%2").arg(grupo, 2, 10, QLatin1Char('0')).arg(membro, 3, 10, QLatin1Char('0'));
}

// A file made once per program: the chart, and two journals of 50.000
// entries (2008 in March alone, 2007 over the whole year).
class Arquivo {
public:
    static Arquivo &instancia()
    {
        static Arquivo a;
        return a;
    }
    Connection con;

private:
    QTemporaryDir dir_;
    uint32_t semente_ = 12345;

    int sorteio(int n)
    {
        semente_ = semente_ * 1103515245u + 12345u;
        return int((semente_ >> 8) % uint32_t(n));
    }

    Arquivo()
    {
        const QString nome = dir_.filePath(QStringLiteral("Con001.mdb"));
        QFile::copy(QStringLiteral(HAB_BIN_DIR "/Matrix.mdb"), nome);
        QFile::setPermissions(nome, QFile::ReadOwner | QFile::WriteOwner);
        con.Open(connectionString(dir_.path() + QLatin1Char('/'), QStringLiteral("Con001.mdb"), QString()));

        QStringList zeros{QStringLiteral("sf00 = '0'")};
        for (int m = 1; m <= 12; ++m)
            for (const char *p : {"sf", "vd", "vc"})
                zeros << QStringLiteral("%1%2 = '0'").arg(QLatin1String(p)).arg(m, 2, 10, QLatin1Char('0'));
        for (int g = 1; g <= kGrupos; ++g) {
            const QString grupo = QStringLiteral("%1.").arg(g, 2, 10, QLatin1Char('0'));
            con.Execute(QStringLiteral("INSERT INTO Plano(codigo,nome,tipo,classe,sintetico) VALUES('%1',\"Grupo %1\",\"D\",\"O\",True)")
                            .arg(grupo));
            for (int m = 1; m <= kMembros; ++m)
                con.Execute(QStringLiteral("INSERT INTO Plano(codigo,nome,tipo,classe,sintetico) VALUES('%1',\"Conta %1\",\"D\",\"O\",False)")
                                .arg(codigo(g, m)));
        }
        con.Execute(QStringLiteral("UPDATE Plano SET ") + zeros.join(QStringLiteral(", ")));

        for (int i = 0; i < kLancamentos; ++i) {
            const QString deb = codigo(1 + sorteio(kGrupos), 1 + sorteio(kMembros));
            const QString cre = codigo(1 + sorteio(kGrupos), 1 + sorteio(kMembros));
            const QString valor = QStringLiteral("%1,%2").arg(1 + sorteio(5000)).arg(sorteio(100), 2, 10, QLatin1Char('0'));
            const QString marco = QStringLiteral("%1/03/2008").arg(1 + sorteio(31), 2, 10, QLatin1Char('0'));
            const QString ano = QStringLiteral("%1/%2/2007").arg(1 + sorteio(28), 2, 10, QLatin1Char('0')).arg(1 + i % 12, 2, 10, QLatin1Char('0'));
            for (const auto &[tabela, data] : {std::pair{QStringLiteral("Mov08"), marco}, std::pair{QStringLiteral("Mov07"), ano}})
                con.Execute(QStringLiteral("INSERT INTO ") + tabela + QStringLiteral(" (datalan,ctadeb,ctacre,nrdoc,histlan,vlrlan)  VALUES('") +
                            data + QStringLiteral("',\"") + deb + QStringLiteral("\",\"") + cre +
                            QStringLiteral("\",\"1\",\"Lançamento de teste\",'") + valor + QStringLiteral("')"));
        }
    }
};

void BM_AtualizaSaldos(benchmark::State &state)
{
    Connection &con = Arquivo::instancia().con;
    for (auto _ : state)
        AtualizaSaldos(con, QStringLiteral("03/2008"));
    state.SetLabel("500 contas, 50.000 lançamentos em março, março a dezembro");
}
BENCHMARK(BM_AtualizaSaldos)->Unit(benchmark::kMillisecond)->Iterations(3);

// The line number is the system's 16-bit counter, so a whole year of 50.000
// entries (100.000 lines) cannot be unfolded: the run stops at line 32.767.
// The widest period below that is a quarter (12.500 entries, 25.000 lines).
void BM_RazaoPeriodo(benchmark::State &state)
{
    Connection &con = Arquivo::instancia().con;
    RazaoPeriodo periodo;
    periodo.ano = QStringLiteral("2007");
    periodo.mesIni = QStringLiteral("1");
    periodo.mesFim = QString::number(state.range(0));
    for (auto _ : state)
        EncheMovRazao(con, periodo);
    state.SetLabel(QStringLiteral("ano de 50.000 lançamentos, meses 1 a %1").arg(state.range(0)).toStdString());
}
BENCHMARK(BM_RazaoPeriodo)->Arg(1)->Arg(3)->Unit(benchmark::kMillisecond)->Iterations(3);

void BM_RazaoAnoAteOEstouro(benchmark::State &state)
{
    Connection &con = Arquivo::instancia().con;
    RazaoPeriodo periodo;
    periodo.ano = QStringLiteral("2007");
    periodo.mesIni = QStringLiteral("1");
    periodo.mesFim = QStringLiteral("12");
    for (auto _ : state) {
        try {
            EncheMovRazao(con, periodo);
        } catch (const std::exception &) {
            // "Estouro de capacidade" after 32.767 lines, as the system stops.
        }
    }
    state.SetLabel("ano inteiro: para no estouro do contador de 16 bits");
}
BENCHMARK(BM_RazaoAnoAteOEstouro)->Unit(benchmark::kMillisecond)->Iterations(3);

} // namespace

BENCHMARK_MAIN();
