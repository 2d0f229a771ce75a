// Accounting engine on a condominium file of realistic size: the balance
// update of a chart of 500 accounts with a month of 50.000 entries, the
// ledger's work table over a year of 50.000 entries and the trial balance's.
// Without arguments each figure is printed beside raw SQLite running the same
// statements, prepared and bound, with the same transactions (bench/paired.h);
// with --benchmark_* arguments it runs the Google Benchmark cases.
#include "accounting/atualiza.h"
#include "accounting/forms/frmMov_Atualiza.h"
#include "accounting/balancete.h"
#include "accounting/razao.h"
#include "bench/paired.h"
#include "core/datastore.h"
#include "core/session.h"
#include "core/widgets/datefield.h"

#include <QApplication>
#include <QDate>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QVariant>
#include <benchmark/benchmark.h>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <map>
#include <sqlite3.h>

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
    QString arquivo;

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
        arquivo = nome;
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

// The same update as the accountant runs it: frmMov_Atualiza on its own
// connection, its two bars and pass text moving and the window painting.
double atualizaPeloForm()
{
    session.conAtiva = connectionString(QFileInfo(Arquivo::instancia().arquivo).path() + QLatin1Char('/'),
                                        QStringLiteral("Con001.mdb"), QString());
    frmMov_Atualiza form;
    form.show();
    form.findChild<DateField *>(QStringLiteral("tdbAnomesfim"))->setData(QDate(2008, 3, 1));
    QApplication::processEvents();
    return bench::seconds([&] { form.cmdAtualiza_Click(); });
}

// What habtool atualiza runs: the routine on a connection, the pass texts to a sink.
double atualizaComoHabtool()
{
    Connection con;
    con.ConnectionTimeout = 100;
    con.Open(connectionString(QFileInfo(Arquivo::instancia().arquivo).path() + QLatin1Char('/'),
                              QStringLiteral("Con001.mdb"), QString()));
    QString ultimo;
    const double s = bench::seconds([&] {
        AtualizaSaldos(con, QStringLiteral("03/2008"), [&](const Progress &p) { ultimo = p.text; });
    });
    con.Close();
    return s;
}

void BM_AtualizaSaldosPeloForm(benchmark::State &state)
{
    for (auto _ : state)
        state.SetIterationTime(atualizaPeloForm());
    state.SetLabel("frmMov_Atualiza, 500 contas, 50.000 lançamentos em março");
}
BENCHMARK(BM_AtualizaSaldosPeloForm)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(3);

// The line number is the system's 16-bit counter, so a whole year of 50.000
// entries (100.000 lines) cannot be unfolded: the run stops at line 32.767.
// The widest period below that is a quarter (12.500 entries, 25.000 lines).
RazaoPeriodo periodoRazao(int mesFim)
{
    RazaoPeriodo periodo;
    periodo.ano = QStringLiteral("2007");
    periodo.mesIni = QStringLiteral("1");
    periodo.mesFim = QString::number(mesFim);
    return periodo;
}

void BM_RazaoPeriodo(benchmark::State &state)
{
    Connection &con = Arquivo::instancia().con;
    const RazaoPeriodo periodo = periodoRazao(int(state.range(0)));
    for (auto _ : state)
        EncheMovRazao(con, periodo);
    state.SetLabel(QStringLiteral("ano de 50.000 lançamentos, meses 1 a %1").arg(state.range(0)).toStdString());
}
BENCHMARK(BM_RazaoPeriodo)->Arg(1)->Arg(3)->Unit(benchmark::kMillisecond)->Iterations(3);

void BM_RazaoAnoAteOEstouro(benchmark::State &state)
{
    Connection &con = Arquivo::instancia().con;
    const RazaoPeriodo periodo = periodoRazao(12);
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

void BM_Balancete(benchmark::State &state)
{
    Connection &con = Arquivo::instancia().con;
    for (auto _ : state)
        EncheRBalancete(con, QStringLiteral("3"), QString(), false, QStringLiteral("2008"));
    state.SetLabel("500 contas, março de 2008");
}
BENCHMARK(BM_Balancete)->Unit(benchmark::kMillisecond)->Iterations(3);

// ---- The same statements on raw SQLite ----------------------------------------

class Bruto {
public:
    explicit Bruto(const QString &arquivo)
    {
        sqlite3_open_v2(arquivo.toUtf8().constData(), &db_, SQLITE_OPEN_READWRITE, nullptr);
        sqlite3_exec(db_, "PRAGMA journal_mode=WAL; PRAGMA synchronous=NORMAL", nullptr, nullptr, nullptr);
    }
    ~Bruto()
    {
        for (auto &[sql, st] : cache_)
            sqlite3_finalize(st);
        sqlite3_close(db_);
    }

    // A prepared statement, kept by its text; bound values cleared.
    sqlite3_stmt *st(const QByteArray &sql)
    {
        sqlite3_stmt *&s = cache_[sql];
        if (!s && sqlite3_prepare_v2(db_, sql.constData(), int(sql.size()), &s, nullptr) != SQLITE_OK)
            throw std::runtime_error(sqlite3_errmsg(db_));
        return s;
    }
    void exec(const char *sql) { passo(st(sql)); }
    void passo(sqlite3_stmt *s)
    {
        while (sqlite3_step(s) == SQLITE_ROW) {
        }
        sqlite3_reset(s);
    }

    // Every row of a read, every column as the store holds it (text as
    // QString, numbers as double), read whole before the writes that follow.
    struct Linhas {
        QStringList nomes;
        std::vector<QVariant> celulas;
        size_t linhas = 0;
        int coluna(const char *nome) const
        {
            for (qsizetype c = 0; c < nomes.size(); ++c)
                if (nomes[c].compare(QLatin1String(nome), Qt::CaseInsensitive) == 0)
                    return int(c);
            return -1;
        }
        const QVariant &at(size_t linha, int coluna) const { return celulas[linha * size_t(nomes.size()) + size_t(coluna)]; }
    };
    Linhas le(sqlite3_stmt *s)
    {
        Linhas l;
        const int n = sqlite3_column_count(s);
        for (int c = 0; c < n; ++c)
            l.nomes << QString::fromUtf8(sqlite3_column_name(s, c));
        while (sqlite3_step(s) == SQLITE_ROW) {
            for (int c = 0; c < n; ++c) {
                switch (sqlite3_column_type(s, c)) {
                case SQLITE_NULL:
                    l.celulas.emplace_back();
                    break;
                case SQLITE_TEXT:
                    l.celulas.emplace_back(QString::fromUtf8(reinterpret_cast<const char *>(sqlite3_column_text(s, c)),
                                                             sqlite3_column_bytes(s, c)));
                    break;
                default:
                    l.celulas.emplace_back(sqlite3_column_double(s, c));
                }
            }
            ++l.linhas;
        }
        sqlite3_reset(s);
        return l;
    }

    static void texto(sqlite3_stmt *s, int i, const QString &t)
    {
        const QByteArray b = t.toUtf8();
        sqlite3_bind_text(s, i, b.constData(), int(b.size()), SQLITE_TRANSIENT);
    }

private:
    sqlite3 *db_ = nullptr;
    std::map<QByteArray, sqlite3_stmt *> cache_;
};

QString iso(int ano, int mes, int dia) { return QDate(ano, mes, dia).toString(Qt::ISODate); }
QByteArray mesCol(const char *prefixo, int mes) { return QByteArray(prefixo) + QByteArray::number(mes).rightJustified(2, '0'); }

// EncheMovRazao, months 1 to mesFim of 2007: one transaction.
void razaoBruto(Bruto &b, int mesFim)
{
    const QString inicio = iso(2007, 1, 1), fim = iso(2007, mesFim, QDate(2007, mesFim, 1).daysInMonth());
    b.exec("BEGIN");
    b.exec("DELETE FROM MovRazao");
    sqlite3_stmt *sel = b.st("SELECT * FROM Mov07 WHERE datalan BETWEEN ?1 AND ?2");
    Bruto::texto(sel, 1, inicio);
    Bruto::texto(sel, 2, fim);
    const Bruto::Linhas mov = b.le(sel);
    const int cData = mov.coluna("datalan"), cAuto = mov.coluna("codauto"), cDeb = mov.coluna("ctadeb"),
              cCre = mov.coluna("ctacre"), cDoc = mov.coluna("nrdoc"), cHist = mov.coluna("histlan"),
              cValor = mov.coluna("vlrlan");
    sqlite3_stmt *ins = b.st("INSERT INTO MovRazao(codigo,datalan,nrlan,cta,cpartida,nrdoc,histlan,vlrlan,tipolan) "
                             "VALUES (?1,?2,?3,?4,?5,?6,?7,?8,?9)");
    int contador = 1;
    auto lado = [&](size_t r, const QString &cta, const QString &cpartida, const char *tipo) {
        if (cta.size() != 6)
            return;
        Bruto::texto(ins, 1, QString::number(contador));
        Bruto::texto(ins, 2, mov.at(r, cData).toString());
        sqlite3_bind_int64(ins, 3, qint64(mov.at(r, cAuto).toDouble()));
        Bruto::texto(ins, 4, cta);
        Bruto::texto(ins, 5, cpartida);
        Bruto::texto(ins, 6, mov.at(r, cDoc).toString());
        Bruto::texto(ins, 7, mov.at(r, cHist).toString());
        sqlite3_bind_double(ins, 8, mov.at(r, cValor).toDouble());
        sqlite3_bind_text(ins, 9, tipo, 1, SQLITE_STATIC);
        b.passo(ins);
        ++contador;
    };
    for (size_t r = 0; r < mov.linhas; ++r) {
        const QString deb = mov.at(r, cDeb).toString(), cre = mov.at(r, cCre).toString();
        lado(r, deb, cre, "D");
        lado(r, cre, deb, "C");
    }

    const Bruto::Linhas linhas = b.le(b.st("SELECT * FROM MovRazao ORDER BY cta, datalan, tipolan desc"));
    b.exec("DELETE FROM MovRazao");
    const int lCta = linhas.coluna("cta"), lData = linhas.coluna("datalan"), lNr = linhas.coluna("nrlan"),
              lCp = linhas.coluna("cpartida"), lDoc = linhas.coluna("nrdoc"), lHist = linhas.coluna("histlan"),
              lValor = linhas.coluna("vlrlan"), lTipo = linhas.coluna("tipolan");
    sqlite3_stmt *abertura = b.st("SELECT sf00 FROM plano WHERE codigo = ?1");
    sqlite3_stmt *insere = b.st("INSERT INTO MovRazao(codigo,datalan,nrlan,cta,cpartida,nrdoc,histlan,vlrlan,tipolan,saldo,tiposal) "
                                "VALUES (?1,?2,?3,?4,?5,?6,?7,?8,?9,?10,?11)");
    contador = 1;
    QString contaAtual;
    double saldo = 0;
    auto tipoSaldo = [](double s) { return s > 0 ? "D" : s < 0 ? "C" : ""; };
    for (size_t r = 0; r < linhas.linhas;) {
        const QString cta = linhas.at(r, lCta).toString();
        if (cta != contaAtual) {
            contaAtual = cta;
            Bruto::texto(abertura, 1, cta);
            saldo = sqlite3_step(abertura) == SQLITE_ROW ? sqlite3_column_double(abertura, 0) : 0;
            sqlite3_reset(abertura);
            Bruto::texto(insere, 1, QString::number(contador));
            Bruto::texto(insere, 2, inicio);
            sqlite3_bind_int(insere, 3, 0);
            Bruto::texto(insere, 4, cta);
            sqlite3_bind_text(insere, 5, "", 0, SQLITE_STATIC);
            sqlite3_bind_text(insere, 6, "", 0, SQLITE_STATIC);
            sqlite3_bind_text(insere, 7, "Saldo Anterior", -1, SQLITE_STATIC);
            sqlite3_bind_int(insere, 8, 0);
            sqlite3_bind_text(insere, 9, "", 0, SQLITE_STATIC);
            sqlite3_bind_double(insere, 10, saldo);
            sqlite3_bind_text(insere, 11, tipoSaldo(saldo), -1, SQLITE_STATIC);
            b.passo(insere);
            ++contador;
            continue;
        }
        const double valor = linhas.at(r, lValor).toDouble();
        const QString tipo = linhas.at(r, lTipo).toString();
        saldo = std::round((tipo == u"D" ? saldo + valor : saldo - valor) * 10000) / 10000;
        Bruto::texto(insere, 1, QString::number(contador));
        Bruto::texto(insere, 2, linhas.at(r, lData).toString());
        Bruto::texto(insere, 3, linhas.at(r, lNr).toString());
        Bruto::texto(insere, 4, cta);
        Bruto::texto(insere, 5, linhas.at(r, lCp).toString());
        Bruto::texto(insere, 6, linhas.at(r, lDoc).toString());
        Bruto::texto(insere, 7, linhas.at(r, lHist).toString());
        sqlite3_bind_double(insere, 8, valor);
        Bruto::texto(insere, 9, tipo);
        sqlite3_bind_double(insere, 10, saldo);
        sqlite3_bind_text(insere, 11, tipoSaldo(saldo), -1, SQLITE_STATIC);
        b.passo(insere);
        ++contador;
        ++r;
    }
    b.exec("COMMIT");
}

// AtualizaSaldos for 03/2008: each of the four passes one transaction.
void atualizaBruto(Bruto &b)
{
    const int base = 3;
    // The year's journal, read before anything is wiped.
    {
        sqlite3_stmt *sel = b.st("SELECT ctadeb,vlrlan FROM Mov08 WHERE datalan BETWEEN ?1 AND ?2 ORDER BY ctadeb");
        Bruto::texto(sel, 1, iso(2008, 3, 1));
        Bruto::texto(sel, 2, iso(2008, 3, 31));
        b.passo(sel);
    }
    b.exec("BEGIN");
    for (int m = base; m <= 12; ++m)
        b.exec("UPDATE plano SET " + mesCol("sf", m) + " = 0, " + mesCol("vd", m) + " = 0, " + mesCol("vc", m) + " = 0");
    b.exec("COMMIT");

    b.exec("BEGIN");
    for (const char *lado : {"ctadeb", "ctacre"}) {
        const QByteArray coluna = mesCol(lado == QByteArray("ctadeb") ? "vd" : "vc", base);
        sqlite3_stmt *sel = b.st(QByteArray("SELECT ") + lado + ",vlrlan FROM Mov08 WHERE datalan BETWEEN ?1 AND ?2 ORDER BY " + lado);
        Bruto::texto(sel, 1, iso(2008, 3, 1));
        Bruto::texto(sel, 2, iso(2008, 3, 31));
        const Bruto::Linhas rs = b.le(sel);
        sqlite3_stmt *upd = b.st("UPDATE plano SET " + coluna + " = ?1 WHERE codigo = ?2");
        float total = 0;
        for (size_t r = 0; r < rs.linhas; ++r) {
            const QString codigo = rs.at(r, 0).toString();
            total += float(rs.at(r, 1).toDouble());
            if (r + 1 == rs.linhas || rs.at(r + 1, 0).toString() != codigo) {
                sqlite3_bind_double(upd, 1, double(total));
                Bruto::texto(upd, 2, codigo);
                b.passo(upd);
                total = 0;
            }
        }
    }
    b.exec("COMMIT");

    const QByteArray vd = mesCol("vd", base), vc = mesCol("vc", base);
    b.passo(b.st("SELECT COUNT(codigo) as I FROM plano WHERE codigo LIKE '__.'"));
    b.exec("BEGIN");
    {
        const Bruto::Linhas sinteticas = b.le(b.st("SELECT codigo FROM plano WHERE codigo LIKE '__.'"));
        sqlite3_stmt *membros = b.st("SELECT " + vd + "," + vc + " FROM plano WHERE codigo LIKE ?1");
        sqlite3_stmt *upd = b.st("UPDATE plano SET " + vd + " = ?1, " + vc + " = ?2 WHERE codigo = ?3");
        for (size_t r = 0; r < sinteticas.linhas; ++r) {
            const QString codigo = sinteticas.at(r, 0).toString().trimmed();
            Bruto::texto(membros, 1, codigo + QStringLiteral("___"));
            const Bruto::Linhas m = b.le(membros);
            float d = 0, c = 0;
            for (size_t k = 0; k < m.linhas; ++k) {
                d += float(m.at(k, 0).toDouble());
                c += float(m.at(k, 1).toDouble());
            }
            sqlite3_bind_double(upd, 1, double(d));
            sqlite3_bind_double(upd, 2, double(c));
            Bruto::texto(upd, 3, codigo);
            b.passo(upd);
        }
    }
    b.exec("COMMIT");

    b.exec("BEGIN");
    for (int m = base; m <= 12; ++m) {
        const QByteArray sfAnt = mesCol("sf", m - 1), sf = mesCol("sf", m);
        const Bruto::Linhas rs =
            b.le(b.st("SELECT codigo," + sfAnt + "," + mesCol("vd", m) + "," + mesCol("vc", m) + " FROM plano ORDER BY codigo"));
        sqlite3_stmt *upd = b.st("UPDATE Plano SET " + sf + " = ?1 WHERE codigo = ?2");
        for (size_t r = 0; r < rs.linhas; ++r) {
            auto dois = [](double v) { return std::round(v * 100) / 100; };
            const double saldo = dois(rs.at(r, 1).toDouble()) + dois(rs.at(r, 2).toDouble()) - dois(rs.at(r, 3).toDouble());
            sqlite3_bind_double(upd, 1, double(float(saldo)));
            Bruto::texto(upd, 2, rs.at(r, 0).toString());
            b.passo(upd);
        }
    }
    b.exec("COMMIT");
}

// EncheRBalancete for March 2008: one transaction.
void balanceteBruto(Bruto &b)
{
    b.exec("BEGIN");
    b.exec("DELETE FROM RBalancete");
    const Bruto::Linhas rs = b.le(b.st("SELECT * FROM Plano ORDER BY codigo"));
    const int cCod = rs.coluna("codigo"), cNome = rs.coluna("nome"), cTipo = rs.coluna("tipo"),
              cClasse = rs.coluna("classe"), cSint = rs.coluna("sintetico"), cIni = rs.coluna("sf02"),
              cFin = rs.coluna("sf03"), cVd = rs.coluna("vd03"), cVc = rs.coluna("vc03"), cPo = rs.coluna("po0803");
    sqlite3_stmt *ins = b.st("INSERT INTO RBalancete(codigo,nome,tipo,classe,sintetico,sini,vdeb,vcre,sfin,spct,spo) "
                             "VALUES (?1,?2,?3,?4,?5,?6,?7,?8,?9,?10,?11)");
    auto dois = [](double v) { return std::round(v * 100) / 100; };
    for (size_t r = 0; r < rs.linhas; ++r) {
        Bruto::texto(ins, 1, rs.at(r, cCod).toString());
        Bruto::texto(ins, 2, rs.at(r, cNome).toString());
        Bruto::texto(ins, 3, rs.at(r, cTipo).toString());
        Bruto::texto(ins, 4, rs.at(r, cClasse).toString());
        sqlite3_bind_int(ins, 5, rs.at(r, cSint).toDouble() != 0 ? 1 : 0);
        const double d = dois(rs.at(r, cVd).toDouble()), c = dois(rs.at(r, cVc).toDouble());
        sqlite3_bind_double(ins, 6, dois(rs.at(r, cIni).toDouble()));
        sqlite3_bind_double(ins, 7, d);
        sqlite3_bind_double(ins, 8, c);
        sqlite3_bind_double(ins, 9, dois(rs.at(r, cFin).toDouble()));
        sqlite3_bind_double(ins, 10, d - c);
        sqlite3_bind_double(ins, 11, dois(rs.at(r, cPo).toDouble()));
        b.passo(ins);
    }
    b.exec("COMMIT");
}

} // namespace

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    if (argc > 1 && std::strncmp(argv[1], "--benchmark", 11) == 0) {
        benchmark::Initialize(&argc, argv);
        benchmark::RunSpecifiedBenchmarks();
        benchmark::Shutdown();
        return 0;
    }
    Arquivo &a = Arquivo::instancia();
    Connection &con = a.con;
    Bruto bruto(a.arquivo);
    AtualizaSaldos(con, QStringLiteral("03/2008"));  // the chart holds the month's figures from here on
    const RazaoPeriodo trimestre = periodoRazao(3);
    std::vector<bench::Pair> pares{{"ledger fill, Jan-Mar of a 50,000-entry year (25,000 lines)", 25000, " lines/s",
                 [&] { return bench::seconds([&] { EncheMovRazao(con, trimestre); }); },
                 [&] { return bench::seconds([&] { razaoBruto(bruto, 3); }); }},
                {"balance update, 500 accounts, 50,000 entries", 1, " runs/s",
                 [&] { return bench::seconds([&] { AtualizaSaldos(con, QStringLiteral("03/2008")); }); },
                 [&] { return bench::seconds([&] { atualizaBruto(bruto); }); }},
                {"balance update from frmMov_Atualiza (raw: habtool atualiza)", 1, " runs/s",
                 [&] { return atualizaPeloForm(); }, [&] { return atualizaComoHabtool(); }},
                {"trial balance fill, 500 accounts", 500, " accounts/s",
                 [&] { return bench::seconds([&] { EncheRBalancete(con, QStringLiteral("3"), QString(), false, QStringLiteral("2008")); }); },
                 [&] { return bench::seconds([&] { balanceteBruto(bruto); }); }}};
    // "--so=TEXT": only the pairs whose work names TEXT (--so=frmMov_Atualiza).
    for (int i = 1; i < argc; ++i)
        if (std::strncmp(argv[i], "--so=", 5) == 0)
            std::erase_if(pares, [&](const bench::Pair &p) { return !std::strstr(p.work, argv[i] + 5); });
    bench::run(pares, bench::pairsWanted(argc, argv, 5));
    return 0;
}
