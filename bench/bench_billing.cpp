// The automatic emission on the demo installation of 10,000 units made by
// tools/mkdemo (its April 2008 parameters: active units, fee items 001, 002,
// 003, no fixed event), against raw SQLite doing the same work with prepared
// statements and bound values:
//   1 read of Parametros, 1 count and 1 list of the apartments;
//   per apartment: 1 keyed read of Aptos, then 1 keyed UPDATE of Aptos and
//   1 INSERT into Recibos in one transaction;
//   1 UPDATE of Parametros at the end.
// Beside it, the same run from its form's road: frmParametro's cmdInicia on the
// same file (the save of the parameters, the right, the run with the bar kept
// painting), against habtool emite's road (the read of the parameters, the
// check of the last number, the run); the ratio is habtool's time over the form's.
// Without arguments it prints the figures beside their twins (bench/paired.h);
// with --benchmark_* arguments it runs the Google Benchmark cases.
#include "bench/paired.h"
#include "billing/emissao.h"
#include "billing/forms/frmParametro.h"
#include "billing/parametros.h"
#include "core/conversions.h"
#include "core/datastore.h"
#include "core/prompter.h"
#include "core/session.h"

#include <QApplication>
#include <QPushButton>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QLocale>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>
#include <map>
#include <sqlite3.h>

namespace {

constexpr int kUnidades = 10000;

class Sim : public Prompter {
public:
    int msgBox(const QString &, int, const QString &) override { return vbYes; }
    QString inputBox(const QString &, const QString &, const QString &d) override { return d; }
};

// The 10,000-unit demo, made once.
struct Modelo {
    QTemporaryDir dir;
    QString arquivo;
    int esperados = 0;  // active units with a due day and a place of collection

    Modelo()
    {
        QProcess mkdemo;
        mkdemo.start(QStringLiteral(HAB_BIN_DIR "/mkdemo"), {dir.path() + QStringLiteral("/demo"), QString::number(kUnidades)});
        if (!mkdemo.waitForFinished(600000) || mkdemo.exitCode() != 0)
            return;
        arquivo = dir.path() + QStringLiteral("/demo/Con001.mdb");
        Connection con;
        con.Open(kConnectionPrefix + arquivo + QStringLiteral(";"));
        Recordset rs = con.Execute(QStringLiteral("SELECT Count(codigo) as I FROM Aptos WHERE situ = 'A' AND not diavcto = '' "
                                                  "AND not tipcob = ''"));
        esperados = int(rs[QStringLiteral("I")].toInt());
    }

    // A fresh copy for one run.
    QString copia()
    {
        const QString alvo = dir.path() + QStringLiteral("/Con001.mdb");
        QFile::remove(alvo);
        QFile::copy(arquivo, alvo);
        QFile::setPermissions(alvo, QFile::ReadOwner | QFile::WriteOwner);
        return alvo;
    }
};

Modelo &modelo()
{
    static Modelo m;
    return m;
}

// One run of the project on a fresh copy; the time of the run alone.
double emissao(long &emitidos)
{
    Sim sim;
    Prompter *anterior = setPrompter(&sim);
    const QString arquivo = modelo().copia();
    Connection con;
    con.Open(kConnectionPrefix + arquivo + QStringLiteral(";"));
    const ParametrosEmissao p = leParametros(con);
    bench::Clock t;
    const ResultadoEmissao r = emissaoAutomatica(con, p);
    const double s = t.stop();
    emitidos = r.emitidos;
    con.Close();
    setPrompter(anterior);
    return s;
}

// habtool emite's road: the stored parameters, the check of the last number, the run.
double pelaLinhaDeComando(long &emitidos)
{
    Sim sim;
    Prompter *anterior = setPrompter(&sim);
    const QString arquivo = modelo().copia();
    bench::Clock t;
    Connection con;
    con.Open(kConnectionPrefix + arquivo + QStringLiteral(";"));
    const ParametrosEmissao p = leParametros(con);
    emitidos = 0;
    if (!confereUltimoRecibo(con, p.fnreci))
        emitidos = emissaoAutomatica(con, p).emitidos;
    con.Close();
    const double s = t.stop();
    setPrompter(anterior);
    return s;
}

// The form's road: frmParametro opened on the file, cmdInicia pressed.
double pelaForma(long &emitidos)
{
    Sim sim;
    Prompter *anterior = setPrompter(&sim);
    const QString arquivo = modelo().copia();
    session.conAtiva = kConnectionPrefix + arquivo + QStringLiteral(";");
    session.conSistema = kConnectionPrefix + modelo().dir.path() + QStringLiteral("/demo/Con000.mdb;");
    session.usuario = QStringLiteral("Maria");
    bench::Clock t;
    {
        frmParametro form;
        form.show();
        form.findChild<QPushButton *>(QStringLiteral("cmdInicia"))->click();
    }
    const double s = t.stop();
    Connection con;
    con.Open(session.conAtiva);
    Recordset rs = con.Execute(QStringLiteral("SELECT Count(codigo) as I FROM Recibos WHERE nemis = '200804'"));
    emitidos = long(rs[QStringLiteral("I")].toInt());
    rs.Close();
    con.Close();
    setPrompter(anterior);
    return s;
}

void BM_EmissaoAutomatica(benchmark::State &state)
{
    long emitidos = 0;
    for (auto _ : state)
        state.SetIterationTime(emissao(emitidos));
    if (emitidos == 0 || emitidos != modelo().esperados)
        state.SkipWithError("a emissão não emitiu um recibo por unidade ativa");
    state.counters["recibos/s"] = benchmark::Counter(double(emitidos) * double(state.iterations()), benchmark::Counter::kIsRate);
}

// ---- The same work on raw SQLite ------------------------------------------------------

struct Stmt {
    sqlite3_stmt *st = nullptr;
    Stmt(sqlite3 *db, const std::string &sql) { sqlite3_prepare_v2(db, sql.c_str(), -1, &st, nullptr); }
    ~Stmt() { sqlite3_finalize(st); }
    void text(int i, const std::string &s) { sqlite3_bind_text(st, i, s.c_str(), int(s.size()), SQLITE_TRANSIENT); }
    void real(int i, double v) { sqlite3_bind_double(st, i, v); }
    bool step() { return sqlite3_step(st) == SQLITE_ROW; }
    void done() { sqlite3_reset(st); }
    std::string col(int i) const
    {
        const auto *t = sqlite3_column_text(st, i);
        return t ? reinterpret_cast<const char *>(t) : std::string();
    }
};

std::string seis(int n)
{
    char b[16];
    std::snprintf(b, sizeof b, "%06d", n);
    return b;
}

double mesmoTrabalho(long &emitidos)
{
    const QByteArray arquivo = modelo().copia().toUtf8();
    sqlite3 *db = nullptr;
    sqlite3_open_v2(arquivo.constData(), &db, SQLITE_OPEN_READWRITE, nullptr);
    sqlite3_exec(db, "PRAGMA journal_mode=WAL; PRAGMA synchronous=NORMAL", nullptr, nullptr, nullptr);
    bench::Clock t;
    emitidos = 0;
    {
        {
            Stmt param(db, "SELECT fnemis, fdemis, fmvcto, fnreci, fEvTc, fCpTc, fEvCb, fCpCb, fEvFr, fCpfr "
                           "FROM Parametros WHERE codigo = 1");
            param.step();
            const std::string fnemis = param.col(0), fdemis = param.col(1);
            const QString fmvcto = formatDate(QDate::fromString(QString::fromStdString(param.col(2)), Qt::ISODate),
                                              QStringLiteral("mm/yyyy"));
            int numero = int(val(QString::fromStdString(param.col(3)))) + 1;
            struct Taxa { std::string cod, comp; };
            const Taxa taxas[3] = {{param.col(4), param.col(5)}, {param.col(6), param.col(7)}, {param.col(8), param.col(9)}};
            param.done();

            const std::string onde = "WHERE situ = 'A' AND NOT diavcto = '' AND NOT tipcob = '' "
                                     "AND NOT (nemis = ?1 AND demis = ?2)";
            Stmt conta(db, "SELECT count(codigo) FROM Aptos " + onde);
            conta.text(1, fnemis);
            conta.text(2, fdemis);
            conta.step();
            conta.done();  // an open statement would hold every write below in one transaction
            Stmt lista(db, "SELECT codauto,codigo,nome,tipcob,situ,honor,refer,diavcto FROM Aptos " + onde + " ORDER BY codigo");
            lista.text(1, fnemis);
            lista.text(2, fdemis);
            std::vector<std::string> codigos;
            while (lista.step())
                codigos.push_back(lista.col(1));
            lista.done();

            Stmt apto(db, "SELECT codauto,codigo,nome,tipcob,tipbolbco,situ,honor,honcb,honfr,refer,diavcto FROM Aptos "
                          "WHERE codigo = ?1");
            Stmt marca(db, "UPDATE Aptos SET nemis = ?1, demis = ?2, nrecibo = ?3 WHERE codigo = ?4");
            Stmt inicio(db, "BEGIN"), fim(db, "COMMIT");
            std::map<int, std::unique_ptr<Stmt>> insercoes;  // by number of items
            for (const std::string &codigo : codigos) {
                apto.text(1, codigo);
                if (!apto.step())
                    break;
                const std::string situ = apto.col(5), tipcob = apto.col(3), tipbolbco = apto.col(4);
                const double valores[3] = {sqlite3_column_double(apto.st, 6), sqlite3_column_double(apto.st, 7),
                                           sqlite3_column_double(apto.st, 8)};
                const int dia = sqlite3_column_int(apto.st, 10);
                apto.done();
                const QDate vencto = dataVencimento(dia, fmvcto);

                inicio.step();
                inicio.done();
                marca.text(1, fnemis);
                marca.text(2, fdemis);
                marca.text(3, seis(numero));
                marca.text(4, codigo);
                marca.step();
                marca.done();

                std::vector<int> itens;
                double vtoth = 0;
                for (int i = 0; i < 3; ++i)
                    if (valores[i] > 0) {
                        itens.push_back(i);
                        vtoth += valores[i];
                    }
                auto &ins = insercoes[int(itens.size())];
                if (!ins) {
                    std::string cols = "INSERT INTO Recibos (codigo,codap,nemis,demis,dvencto,Tipcob,Tipbolbco,situacao";
                    std::string vals = ") VALUES(?,?,?,?,?,?,?,?";
                    for (size_t s = 0; s < itens.size(); ++s) {
                        cols += ",item" + std::to_string(s) + ",comp" + std::to_string(s) + ",refer" + std::to_string(s)
                            + ",valor" + std::to_string(s);
                        vals += ",?,?,?,?";
                    }
                    ins = std::make_unique<Stmt>(db, cols + ",vtoth,vtotr,vtott,vtotd,vtotal" + vals + ",?,?,?,?,?)");
                }
                int k = 1;
                ins->text(k++, seis(numero));
                ins->text(k++, codigo);
                ins->text(k++, fnemis);
                ins->text(k++, fdemis);
                ins->text(k++, vencto.toString(Qt::ISODate).toStdString());
                ins->text(k++, tipcob);
                ins->text(k++, tipbolbco);
                ins->text(k++, situ);
                for (int i : itens) {
                    ins->text(k++, taxas[i].cod);
                    ins->text(k++, taxas[i].comp);
                    ins->real(k++, 0);
                    ins->real(k++, valores[i]);
                }
                for (double v : {vtoth, 0.0, 0.0, 0.0, vtoth})
                    ins->real(k++, v);
                ins->step();
                ins->done();
                fim.step();
                fim.done();
                ++numero;
                ++emitidos;
            }
            Stmt fnreci(db, "UPDATE Parametros SET fnreci = ?1 WHERE codigo = 1");
            fnreci.text(1, seis(numero - 1));
            fnreci.step();
        }
    }
    const double s = t.stop();
    sqlite3_close(db);
    return s;
}

void BM_SQLiteMesmoTrabalho(benchmark::State &state)
{
    long emitidos = 0;
    for (auto _ : state)
        state.SetIterationTime(mesmoTrabalho(emitidos));
    if (emitidos == 0 || emitidos != modelo().esperados)
        state.SkipWithError("o trabalho equivalente não emitiu um recibo por unidade ativa");
    state.counters["recibos/s"] = benchmark::Counter(double(emitidos) * double(state.iterations()), benchmark::Counter::kIsRate);
}

} // namespace

BENCHMARK(BM_EmissaoAutomatica)->Unit(benchmark::kMillisecond)->Iterations(3)->UseManualTime();
BENCHMARK(BM_SQLiteMesmoTrabalho)->Unit(benchmark::kMillisecond)->Iterations(3)->UseManualTime();

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    QLocale::setDefault(QLocale(QLocale::Portuguese, QLocale::Brazil));
    if (argc > 1 && std::strncmp(argv[1], "--benchmark", 11) == 0) {
        benchmark::Initialize(&argc, argv);
        benchmark::RunSpecifiedBenchmarks();
        benchmark::Shutdown();
        return 0;
    }
    if (modelo().esperados == 0) {
        std::fprintf(stderr, "mkdemo falhou\n");
        return 1;
    }
    long projeto = 0, bruto = 0, forma = 0, linha = 0;
    bench::run({{"automatic emission, 10,000 units", double(modelo().esperados), " rec/s",
                 [&] { return emissao(projeto); }, [&] { return mesmoTrabalho(bruto); }},
                {"from frmParametro (raw: habtool emite's road)", double(modelo().esperados), " rec/s",
                 [&] { return pelaForma(forma); }, [&] { return pelaLinhaDeComando(linha); }}},
               bench::pairsWanted(argc, argv, 7));
    if (projeto != modelo().esperados || bruto != modelo().esperados || forma != modelo().esperados
        || linha != modelo().esperados) {
        std::fprintf(stderr, "recibos: projeto %ld, bruto %ld, forma %ld, habtool %ld, esperados %d\n", projeto, bruto,
                     forma, linha, modelo().esperados);
        return 1;
    }
    return 0;
}
