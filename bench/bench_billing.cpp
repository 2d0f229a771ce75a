// The automatic emission on a condominium of 10,000 units, against raw SQLite
// doing the same work with prepared statements and bound values:
//   1 count and 1 list of the apartments;
//   per apartment: 1 keyed read of Aptos, 1 keyed UPDATE of Aptos,
//   1 keyed read of Eventos per fixed event (2 here), 1 INSERT into Recibos,
//   each write in its own (autocommit) transaction;
//   1 UPDATE of Parametros at the end.
// The file: a copy of the built Matrix.mdb with 10,000 apartments inserted
// (fees on all, a cabin fee on every third, due days 1 to 31).
#include "billing/emissao.h"
#include "billing/parametros.h"
#include "core/conversions.h"
#include "core/datastore.h"
#include "core/prompter.h"
#include "core/session.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
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

// The 10,000-unit file, made once.
struct Modelo {
    QTemporaryDir dir;
    QString arquivo;

    Modelo()
    {
        arquivo = dir.path() + QStringLiteral("/Modelo.mdb");
        QFile::copy(QStringLiteral(HAB_BIN_DIR "/Matrix.mdb"), arquivo);
        QFile::setPermissions(arquivo, QFile::ReadOwner | QFile::WriteOwner);
        Connection con;
        con.Open(kConnectionPrefix + arquivo + QStringLiteral(";"));
        con.Execute(QStringLiteral("DELETE FROM Eventos"));
        con.Execute(QStringLiteral("INSERT INTO Eventos(codigo,nome,tipo,ir,refer,valor) VALUES('001',\"Taxa\",'H',False,False,'0')"));
        con.Execute(QStringLiteral("INSERT INTO Eventos(codigo,nome,tipo,ir,refer,valor) VALUES('002',\"Cabina\",'H',False,False,'0')"));
        con.Execute(QStringLiteral("INSERT INTO Eventos(codigo,nome,tipo,ir,refer,valor) VALUES('003',\"Fundo\",'R',False,False,'0')"));
        con.Execute(QStringLiteral("INSERT INTO Eventos(codigo,nome,tipo,ir,refer,valor) VALUES('020',\"Água\",'T',False,False,'0')"));
        con.Execute(QStringLiteral("INSERT INTO Eventos(codigo,nome,tipo,ir,refer,valor) VALUES('030',\"Desconto\",'D',False,False,'0')"));
        for (int i = 1; i <= kUnidades; ++i)
            con.Execute(QStringLiteral("INSERT INTO Aptos (codigo,nome,situ,tipcob,tipbolbco,honor,honcb,honfr,refer,"
                                       "diavcto,nemis,demis,nrecibo,tapto,cabina,aposentado) VALUES('%1',\"Morador %2\","
                                       "'A','1','','%3','%4','25,5','0',%5,'0','01/01/2008','000000','01',False,False)")
                            .arg(i, 6, 10, QLatin1Char('0'))
                            .arg(i)
                            .arg(300 + i % 7 * 10)
                            .arg(i % 3 == 0 ? 40 : 0)
                            .arg(1 + i % 31));
        ParametrosEmissao p;
        p.fnemis = QStringLiteral("0208");
        p.fdemis = QStringLiteral("05/02/2008");
        p.fmvcto = QStringLiteral("02/2008");
        p.fnreci = QStringLiteral("000000");
        p.fhonor = true;
        p.fautom = true;
        p.fevnt = {QStringLiteral("020"), QStringLiteral("030"), QString(), QString()};
        p.fvlev = {12.5, -5, 0, 0};
        p.fEvTc = QStringLiteral("001");
        p.fEvCb = QStringLiteral("002");
        p.fEvFr = QStringLiteral("003");
        gravaParametros(con, p);
        con.Close();
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

void BM_EmissaoAutomatica(benchmark::State &state)
{
    Sim sim;
    Prompter *anterior = setPrompter(&sim);
    long emitidos = 0;
    for (auto _ : state) {
        state.PauseTiming();
        const QString arquivo = modelo().copia();
        Connection con;
        con.Open(kConnectionPrefix + arquivo + QStringLiteral(";"));
        const ParametrosEmissao p = leParametros(con);
        state.ResumeTiming();
        const ResultadoEmissao r = emissaoAutomatica(con, p);
        state.PauseTiming();
        emitidos = r.emitidos;
        con.Close();
        state.ResumeTiming();
    }
    setPrompter(anterior);
    if (emitidos != kUnidades)
        state.SkipWithError("a emissão não emitiu todos os recibos");
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

void BM_SQLiteMesmoTrabalho(benchmark::State &state)
{
    long emitidos = 0;
    for (auto _ : state) {
        state.PauseTiming();
        const QByteArray arquivo = modelo().copia().toUtf8();
        sqlite3 *db = nullptr;
        sqlite3_open_v2(arquivo.constData(), &db, SQLITE_OPEN_READWRITE, nullptr);
        sqlite3_exec(db, "PRAGMA journal_mode=WAL; PRAGMA synchronous=NORMAL", nullptr, nullptr, nullptr);
        state.ResumeTiming();

        emitidos = 0;
        {
            Stmt conta(db, "SELECT count(codigo) FROM Aptos WHERE situ <> 'I' AND (honor > 0 OR honcb > 0) "
                           "AND NOT diavcto = '' AND NOT tipcob = '' AND NOT (nemis = ?1 AND demis = ?2)");
            conta.text(1, "0208");
            conta.text(2, "2008-02-05");
            conta.step();
            Stmt lista(db, "SELECT codauto,codigo,nome,tipcob,situ,honor,refer,diavcto,nemis,demis,nrecibo FROM Aptos "
                           "WHERE situ <> 'I' AND (honor > 0 OR honcb > 0) AND NOT diavcto = '' AND NOT tipcob = '' "
                           "AND NOT (nemis = ?1 AND demis = ?2) ORDER BY codigo");
            lista.text(1, "0208");
            lista.text(2, "2008-02-05");
            std::vector<std::string> codigos;
            while (lista.step())
                codigos.push_back(lista.col(1));

            Stmt apto(db, "SELECT codauto,codigo,nome,tipcob,tipbolbco,situ,honor,honcb,honfr,refer,diavcto FROM Aptos "
                          "WHERE codigo = ?1");
            Stmt marca(db, "UPDATE Aptos SET nemis = ?1, demis = ?2, nrecibo = ?3 WHERE codigo = ?4");
            Stmt tipo(db, "SELECT tipo FROM Eventos WHERE codigo = ?1");
            std::map<int, std::unique_ptr<Stmt>> insercoes;  // by number of items
            int numero = 1;
            for (const std::string &codigo : codigos) {
                apto.text(1, codigo);
                if (!apto.step())
                    break;
                const std::string situ = apto.col(5), tipcob = apto.col(3), tipbolbco = apto.col(4);
                const double honor = sqlite3_column_double(apto.st, 6), honcb = sqlite3_column_double(apto.st, 7),
                             honfr = sqlite3_column_double(apto.st, 8);
                const int dia = sqlite3_column_int(apto.st, 10);
                apto.done();
                const QDate vencto = dataVencimento(dia, QStringLiteral("02/2008"));

                marca.text(1, "0208");
                marca.text(2, "2008-02-05");
                marca.text(3, seis(numero));
                marca.text(4, codigo);
                marca.step();
                marca.done();

                struct It { const char *cod; double v; };
                std::vector<It> itens;
                double vtoth = 0, vtotd = 0, vtott = 0, vtotal = 0;
                for (auto [cod, v] : {It{"001", honor}, It{"002", honcb}, It{"003", honfr}})
                    if (v > 0) {
                        itens.push_back({cod, v});
                        vtoth += v;
                        vtotal += v;
                    }
                for (auto [cod, v] : {It{"020", 12.5}, It{"030", -5}}) {
                    itens.push_back({cod, v});
                    tipo.text(1, cod);
                    if (tipo.step())
                        (tipo.col(0) == "T" ? vtott : vtotd) += v;
                    tipo.done();
                    vtotal += v;
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
                ins->text(k++, "0208");
                ins->text(k++, "2008-02-05");
                ins->text(k++, vencto.toString(Qt::ISODate).toStdString());
                ins->text(k++, tipcob);
                ins->text(k++, tipbolbco);
                ins->text(k++, situ);
                for (const It &it : itens) {
                    ins->text(k++, it.cod);
                    ins->text(k++, "");
                    ins->real(k++, 0);
                    ins->real(k++, it.v);
                }
                for (double v : {vtoth, 0.0, vtott, vtotd, vtotal})
                    ins->real(k++, v);
                ins->step();
                ins->done();
                ++numero;
                ++emitidos;
            }
            Stmt fnreci(db, "UPDATE Parametros SET fnreci = ?1 WHERE codigo = 1");
            fnreci.text(1, seis(numero - 1));
            fnreci.step();
        }

        state.PauseTiming();
        sqlite3_close(db);
        state.ResumeTiming();
    }
    if (emitidos != kUnidades)
        state.SkipWithError("o trabalho equivalente não emitiu todos os recibos");
    state.counters["recibos/s"] = benchmark::Counter(double(emitidos) * double(state.iterations()), benchmark::Counter::kIsRate);
}

} // namespace

BENCHMARK(BM_EmissaoAutomatica)->Unit(benchmark::kMillisecond)->Iterations(3);
BENCHMARK(BM_SQLiteMesmoTrabalho)->Unit(benchmark::kMillisecond)->Iterations(3);

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    QLocale::setDefault(QLocale(QLocale::Portuguese, QLocale::Brazil));
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
