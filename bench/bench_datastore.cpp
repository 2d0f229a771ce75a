// The data store against raw SQLite on the same file and settings: 10,000
// keyed reads of Aptos by code and 10,000 autocommit updates of a fee, each
// statement text carrying its values as literals, as the system sends them.
// Raw SQLite does the same work with one prepared statement and bound values.
#include "core/datastore.h"

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>
#include <sqlite3.h>

namespace {

constexpr int kRows = 10000;

QString code(int i) { return QStringLiteral("%1").arg(i, 6, 10, QLatin1Char('0')); }

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

void BM_ConnectionKeyedRead(benchmark::State &state)
{
    Connection con;
    con.Open(QStringLiteral("Data Source=") + fixture().file + u';');
    qint64 found = 0;
    for (auto _ : state) {
        for (int i = 1; i <= kRows; ++i) {
            Recordset rs = con.Execute(QStringLiteral("SELECT * FROM Aptos WHERE codigo = '") + code(i) + u'\'');
            found += rs["honor"].toInt();
        }
    }
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

void BM_RawKeyedRead(benchmark::State &state)
{
    sqlite3 *db = rawOpen();
    sqlite3_stmt *st = nullptr;
    sqlite3_prepare_v2(db, "SELECT * FROM Aptos WHERE codigo = ?1", -1, &st, nullptr);
    const int ncols = sqlite3_column_count(st);
    int honor = 0;
    for (int k = 0; k < ncols; ++k)
        if (qstrcmp(sqlite3_column_name(st, k), "honor") == 0)
            honor = k;
    qint64 found = 0;
    for (auto _ : state) {
        for (int i = 1; i <= kRows; ++i) {
            // The same work as the data store: the code as text, every column read.
            const QString c = code(i);
            sqlite3_bind_text16(st, 1, c.utf16(), int(c.size() * 2), SQLITE_TRANSIENT);
            while (sqlite3_step(st) == SQLITE_ROW) {
                for (int k = 0; k < ncols; ++k) {
                    const int type = sqlite3_column_type(st, k);
                    if (type == SQLITE_TEXT)
                        benchmark::DoNotOptimize(QString::fromUtf16(static_cast<const char16_t *>(sqlite3_column_text16(st, k)),
                                                                    sqlite3_column_bytes16(st, k) / 2));
                    else if (type != SQLITE_NULL)
                        benchmark::DoNotOptimize(sqlite3_column_double(st, k));
                }
                found += sqlite3_column_int64(st, honor);
            }
            sqlite3_reset(st);
        }
    }
    benchmark::DoNotOptimize(found);
    sqlite3_finalize(st);
    sqlite3_close(db);
    state.SetItemsProcessed(state.iterations() * kRows);
}

void BM_ConnectionUpdate(benchmark::State &state)
{
    Connection con;
    con.Open(QStringLiteral("Data Source=") + fixture().file + u';');
    int round = 0;
    for (auto _ : state) {
        ++round;
        for (int i = 1; i <= kRows; ++i)
            con.Execute(QStringLiteral("UPDATE Aptos SET honor = '") + QString::number(round * 100 + i % 100) +
                        QStringLiteral(",50' WHERE codigo = '") + code(i) + u'\'');
    }
    state.SetItemsProcessed(state.iterations() * kRows);
}

void BM_RawUpdate(benchmark::State &state)
{
    sqlite3 *db = rawOpen();
    sqlite3_stmt *st = nullptr;
    sqlite3_prepare_v2(db, "UPDATE Aptos SET honor = ?1 WHERE codigo = ?2", -1, &st, nullptr);
    int round = 0;
    for (auto _ : state) {
        ++round;
        for (int i = 1; i <= kRows; ++i) {
            const QString c = code(i);
            sqlite3_bind_double(st, 1, round * 100 + i % 100 + 0.5);
            sqlite3_bind_text16(st, 2, c.utf16(), int(c.size() * 2), SQLITE_TRANSIENT);
            sqlite3_step(st);
            sqlite3_reset(st);
        }
    }
    sqlite3_finalize(st);
    sqlite3_close(db);
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
    benchmark::Initialize(&argc, argv);
    fixture();
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
