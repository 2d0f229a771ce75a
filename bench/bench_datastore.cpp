// The data store against raw SQLite on the same file and settings: 10,000
// keyed reads of Aptos by code and 10,000 autocommit updates of a fee, each
// statement text carrying its values as literals, as the system sends them.
// Raw SQLite does the same work with one prepared statement and bound values.
// Without arguments it prints each figure beside its raw twin (bench/paired.h);
// with --benchmark_* arguments it runs the Google Benchmark cases.
#include "bench/paired.h"
#include "core/datastore.h"

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>
#include <sqlite3.h>

namespace {

constexpr int kRows = 10000;

QString code(int i) { return QStringLiteral("%1").arg(i, 6, 10, QLatin1Char('0')); }

// Every round of updates, of either side, writes values no row holds yet:
// SQLite would skip writing a row that does not change.
int nextRound()
{
    static int round = 0;
    return ++round;
}

// A condominium file with kRows units, built once.
struct Fixture {
    QTemporaryDir dir;
    QString file;
    Fixture()
    {
        file = dir.path() + QStringLiteral("/Con001.mdb");
        if (!QFile::copy(QStringLiteral(HAB_BIN_DIR "/Matrix.mdb"), file))
            throw std::runtime_error("Matrix.mdb não encontrado: compile o projeto antes");
        QFile::setPermissions(file, QFile::ReadOwner | QFile::WriteOwner);
        Connection con;
        con.Open(QStringLiteral("Data Source=") + file + u';');
        con.Execute("BEGIN");
        for (int i = 1; i <= kRows; ++i)
            con.Execute(QStringLiteral("INSERT INTO Aptos (codigo,nome,situ,honor,diavcto,demis) VALUES ('%1',\"Condômino %1\",'A','350.00',10,#01/01/2003#)")
                            .arg(code(i)));
        con.Execute("COMMIT");
    }
};

Fixture &fixture()
{
    static Fixture f;
    return f;
}

qint64 connectionReads(Connection &con)
{
    qint64 found = 0;
    for (int i = 1; i <= kRows; ++i) {
        Recordset rs = con.Execute(QStringLiteral("SELECT * FROM Aptos WHERE codigo = '") + code(i) + u'\'');
        found += rs["honor"].toInt();
    }
    return found;
}

void BM_ConnectionKeyedRead(benchmark::State &state)
{
    Connection con;
    con.Open(QStringLiteral("Data Source=") + fixture().file + u';');
    qint64 found = 0;
    for (auto _ : state)
        found += connectionReads(con);
    benchmark::DoNotOptimize(found);
    state.SetItemsProcessed(state.iterations() * kRows);
}

sqlite3 *rawOpen()
{
    sqlite3 *db = nullptr;
    sqlite3_open_v2(fixture().file.toUtf8().constData(), &db, SQLITE_OPEN_READWRITE, nullptr);
    sqlite3_exec(db, "PRAGMA journal_mode=WAL; PRAGMA synchronous=NORMAL", nullptr, nullptr, nullptr);
    return db;
}

struct RawReads {
    sqlite3 *db = rawOpen();
    sqlite3_stmt *st = nullptr;
    int ncols = 0, honor = 0;
    RawReads()
    {
        sqlite3_prepare_v2(db, "SELECT * FROM Aptos WHERE codigo = ?1", -1, &st, nullptr);
        ncols = sqlite3_column_count(st);
        for (int k = 0; k < ncols; ++k)
            if (qstrcmp(sqlite3_column_name(st, k), "honor") == 0)
                honor = k;
    }
    ~RawReads()
    {
        sqlite3_finalize(st);
        sqlite3_close(db);
    }
    qint64 run()
    {
        qint64 found = 0;
        for (int i = 1; i <= kRows; ++i) {
            // The same work as the data store: the code as text, every column
            // read into a value of its own (text as a QString).
            const QByteArray c = code(i).toUtf8();
            sqlite3_bind_text(st, 1, c.constData(), int(c.size()), SQLITE_TRANSIENT);
            while (sqlite3_step(st) == SQLITE_ROW) {
                for (int k = 0; k < ncols; ++k) {
                    const int type = sqlite3_column_type(st, k);
                    if (type == SQLITE_TEXT)
                        benchmark::DoNotOptimize(QString::fromUtf8(reinterpret_cast<const char *>(sqlite3_column_text(st, k)),
                                                                   sqlite3_column_bytes(st, k)));
                    else if (type != SQLITE_NULL)
                        benchmark::DoNotOptimize(sqlite3_column_double(st, k));
                }
                found += sqlite3_column_int64(st, honor);
            }
            sqlite3_reset(st);
        }
        return found;
    }
};

void BM_RawKeyedRead(benchmark::State &state)
{
    RawReads raw;
    qint64 found = 0;
    for (auto _ : state)
        found += raw.run();
    benchmark::DoNotOptimize(found);
    state.SetItemsProcessed(state.iterations() * kRows);
}

void connectionUpdates(Connection &con)
{
    const int round = nextRound();
    for (int i = 1; i <= kRows; ++i)
        con.Execute(QStringLiteral("UPDATE Aptos SET honor = '") + QString::number(round * 100 + i % 100) +
                    QStringLiteral(",50' WHERE codigo = '") + code(i) + u'\'');
}

void BM_ConnectionUpdate(benchmark::State &state)
{
    Connection con;
    con.Open(QStringLiteral("Data Source=") + fixture().file + u';');
    for (auto _ : state)
        connectionUpdates(con);
    state.SetItemsProcessed(state.iterations() * kRows);
}

// The same updates, each its own transaction, with values bound.
struct RawUpdates {
    sqlite3 *db = rawOpen();
    sqlite3_stmt *st = nullptr;
    RawUpdates() { sqlite3_prepare_v2(db, "UPDATE Aptos SET honor = ?1 WHERE codigo = ?2", -1, &st, nullptr); }
    ~RawUpdates()
    {
        sqlite3_finalize(st);
        sqlite3_close(db);
    }
    void run()
    {
        const int round = nextRound();
        for (int i = 1; i <= kRows; ++i) {
            const QByteArray c = code(i).toUtf8();
            sqlite3_bind_double(st, 1, round * 100 + i % 100 + 0.5);
            sqlite3_bind_text(st, 2, c.constData(), int(c.size()), SQLITE_TRANSIENT);
            sqlite3_step(st);
            sqlite3_reset(st);
        }
    }
};

void BM_RawUpdate(benchmark::State &state)
{
    RawUpdates raw;
    for (auto _ : state)
        raw.run();
    state.SetItemsProcessed(state.iterations() * kRows);
}

BENCHMARK(BM_ConnectionKeyedRead)->Unit(benchmark::kMillisecond)->MinTime(2);
BENCHMARK(BM_RawKeyedRead)->Unit(benchmark::kMillisecond)->MinTime(2);
BENCHMARK(BM_ConnectionUpdate)->Unit(benchmark::kMillisecond)->MinTime(2);
BENCHMARK(BM_RawUpdate)->Unit(benchmark::kMillisecond)->MinTime(2);

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    fixture();
    const bool googleBenchmark = argc > 1 && std::strncmp(argv[1], "--benchmark", 11) == 0;
    if (googleBenchmark) {
        benchmark::Initialize(&argc, argv);
        benchmark::RunSpecifiedBenchmarks();
        benchmark::Shutdown();
        return 0;
    }
    Connection con;
    con.Open(QStringLiteral("Data Source=") + fixture().file + u';');
    RawReads rawReads;
    RawUpdates rawUpdates;
    qint64 sink = 0;
    bench::run({{"keyed reads, 10,000 rows", double(kRows), "/s",
                 [&] { return bench::seconds([&] { sink += connectionReads(con); }); },
                 [&] { return bench::seconds([&] { sink += rawReads.run(); }); }},
                {"autocommit updates, 10,000 rows", double(kRows), "/s",
                 [&] { return bench::seconds([&] { connectionUpdates(con); }); },
                 [&] { return bench::seconds([&] { rawUpdates.run(); }); }}},
               bench::pairsWanted(argc, argv, 11));
    benchmark::DoNotOptimize(sink);
    return 0;
}
