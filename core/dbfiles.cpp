// The whole-file operations of the data store, on SQLite's online backup,
// integrity check and VACUUM.
#include "core/dbfiles.h"

#include "core/datastore.h"

#include <QFile>
#include <QFileInfo>
#include <QThread>
#include <sqlite3.h>

namespace {

constexpr int kEsperaMs = 100 * 1000;  // as long as a connection waits for a lock

// A connection of its own for one whole-file operation, closed on the way out.
class Arquivo {
public:
    Arquivo(const QString &path, int flags)
    {
        if (sqlite3_open_v2(path.toUtf8().constData(), &db_, flags | SQLITE_OPEN_NOMUTEX, nullptr) != SQLITE_OK) {
            const QString m = db_ ? QString::fromUtf8(sqlite3_errmsg(db_)) : QStringLiteral("falha ao abrir");
            sqlite3_close(db_);
            db_ = nullptr;
            throw DatabaseError(QStringLiteral("Não foi possível abrir o arquivo '%1': %2").arg(path, m), QString());
        }
        sqlite3_busy_timeout(db_, kEsperaMs);
    }
    ~Arquivo() { sqlite3_close_v2(db_); }
    Arquivo(const Arquivo &) = delete;
    Arquivo &operator=(const Arquivo &) = delete;
    sqlite3 *db() const { return db_; }
    QString erro() const { return QString::fromUtf8(sqlite3_errmsg(db_)); }

private:
    sqlite3 *db_ = nullptr;
};

quint32 bigEndian(const QByteArray &b, int at, int n)
{
    quint32 v = 0;
    for (int i = 0; i < n; ++i)
        v = (v << 8) | quint8(b[at + i]);
    return v;
}

} // namespace

void backupDatabase(const QString &source, const QString &target)
{
    if (!QFileInfo(source).isFile())
        throw DatabaseError(QStringLiteral("Não foi possível encontrar o arquivo '%1'.").arg(source), QString());
    // Read-write, so that a journal left by a connection of this program is
    // read with the file; nothing is written to the source.
    Arquivo de(source, SQLITE_OPEN_READWRITE);
    Arquivo para(target, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE);
    sqlite3_backup *b = sqlite3_backup_init(para.db(), "main", de.db(), "main");
    if (!b)
        throw DatabaseError(QStringLiteral("Não foi possível copiar '%1' para '%2': %3").arg(source, target, para.erro()),
                            QString());
    int rc;
    // The whole file in one step; a lock another connection holds for a
    // moment is waited for.
    for (int tentativa = 0;; ++tentativa) {
        rc = sqlite3_backup_step(b, -1);
        if ((rc != SQLITE_BUSY && rc != SQLITE_LOCKED) || tentativa >= 1000)
            break;
        QThread::msleep(10);
    }
    sqlite3_backup_finish(b);
    if (rc != SQLITE_DONE)
        throw DatabaseError(QStringLiteral("Não foi possível copiar '%1' para '%2': %3")
                                .arg(source, target, QString::fromUtf8(sqlite3_errstr(rc))),
                            QString());
}

QStringList checkDatabase(const QString &path)
{
    QFile file(path);
    if (!file.exists())
        return {QStringLiteral("O arquivo não existe.")};
    if (!file.open(QIODevice::ReadOnly))
        return {QStringLiteral("O arquivo não pode ser lido: %1").arg(file.errorString())};
    const qint64 tamanho = file.size();
    const QByteArray cabecalho = file.read(100);
    file.close();
    if (tamanho == 0)
        return {QStringLiteral("O arquivo está vazio.")};
    if (cabecalho.size() < 100 || !cabecalho.startsWith(QByteArray("SQLite format 3", 16)))
        return {QStringLiteral("O arquivo não é um banco de dados do sistema.")};
    qint64 pagina = bigEndian(cabecalho, 16, 2);
    if (pagina == 1)
        pagina = 65536;
    if (pagina < 512 || (pagina & (pagina - 1)) != 0)
        return {QStringLiteral("O cabeçalho do arquivo está danificado.")};
    // The page count in the header holds when the change counter beside it
    // matches (files written by any recent engine).
    const qint64 paginas = bigEndian(cabecalho, 28, 4);
    const bool contagemValida = paginas > 0 && bigEndian(cabecalho, 24, 4) == bigEndian(cabecalho, 92, 4);
    if (tamanho % pagina != 0 || (contagemValida && tamanho < paginas * pagina))
        return {QStringLiteral("O arquivo está incompleto: tem %L1 bytes, e deveria ter %L2 (cópia interrompida ou cortada).")
                    .arg(tamanho)
                    .arg(contagemValida ? paginas * pagina : (tamanho / pagina + 1) * pagina)};

    QStringList achados;
    try {
        Arquivo a(path, SQLITE_OPEN_READWRITE);
        sqlite3_stmt *st = nullptr;
        if (sqlite3_prepare_v2(a.db(), "PRAGMA integrity_check(20)", -1, &st, nullptr) != SQLITE_OK)
            return {QStringLiteral("O arquivo está danificado: %1").arg(a.erro())};
        int rc;
        while ((rc = sqlite3_step(st)) == SQLITE_ROW) {
            const QString linha = QString::fromUtf8(reinterpret_cast<const char *>(sqlite3_column_text(st, 0)));
            if (linha != QLatin1String("ok"))
                achados << linha;
        }
        if (rc != SQLITE_DONE)
            achados << QStringLiteral("O arquivo está danificado: %1").arg(a.erro());
        sqlite3_finalize(st);
    } catch (const DatabaseError &e) {
        return {e.message()};
    }
    if (achados.isEmpty() && !Connection::isSystemFile(path))
        achados << QStringLiteral("O arquivo não é um banco de dados do sistema (falta a tabela Parametros).");
    return achados;
}

void compactDatabase(const QString &path, qint64 *before, qint64 *after)
{
    if (!QFileInfo(path).isFile())
        throw DatabaseError(QStringLiteral("Não foi possível encontrar o arquivo '%1'.").arg(path), QString());
    if (before)
        *before = QFileInfo(path).size();
    {
        Arquivo a(path, SQLITE_OPEN_READWRITE);
        char *erro = nullptr;
        // VACUUM writes the rebuilt file through the journal: a failure or a
        // kill leaves the file as it was. The checkpoint puts it in the file.
        if (sqlite3_exec(a.db(), "VACUUM; PRAGMA wal_checkpoint(TRUNCATE)", nullptr, nullptr, &erro) != SQLITE_OK) {
            const QString m = QString::fromUtf8(erro ? erro : "");
            sqlite3_free(erro);
            throw DatabaseError(QStringLiteral("Não foi possível compactar '%1': %2").arg(path, m), QString());
        }
    }
    if (after)
        *after = QFileInfo(path).size();
}
