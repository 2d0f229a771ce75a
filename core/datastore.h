#pragma once
// The data store: the operations of the original database interface that the
// system uses, on SQLite files. Statement text in the system's dialect is
// translated in one place (jetdialect.h). Nothing of SQLite leaks past here.
//
//   Connection con;
//   con.ConnectionTimeout = 100;
//   con.Open(session.conAtiva);            // missing file: DatabaseError
//   Recordset rs = con.Execute("SELECT * FROM Aptos WHERE codigo = '000101'");
//   while (!rs.eof()) { QString nome = rs["nome"].text(); rs.moveNext(); }
//   long n = 0; con.Execute("DELETE FROM Eventtot", &n);
//   Recordset ks; ks.Open("SELECT * FROM Grupos", con, 1, 2);  // keyset: recordCount, moveFirst
#include "core/errors.h"
#include "core/money.h"

#include <QDate>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <functional>
#include <memory>
#include <stdexcept>
#include <vector>

// Kind of a column as the schema catalog knows it.
enum class ColumnKind { Text, Number, Money, Date, Boolean, Counter };

// One value of the current row. Null is distinct from the empty text.
class Field {
public:
    Field() = default;
    Field(QVariant value, ColumnKind kind) : value_(std::move(value)), kind_(kind) {}

    bool isNull() const { return value_.isNull(); }
    ColumnKind kind() const { return kind_; }
    // QString for text; qint64 for counters and whole numbers; double for
    // numbers and money; QDate for dates; bool for booleans; null when Null.
    const QVariant &value() const { return value_; }

    // The text a form gets by concatenating the value with "": Null gives "",
    // a date "dd/mm/yyyy", a number its Brazilian plain form ("12,5"),
    // a boolean "Verdadeiro"/"Falso".
    QString text() const;
    double toDouble() const;   // Null: 0
    Money toMoney() const;     // Null: 0
    qint64 toInt() const;      // Null: 0
    bool toBool() const;       // Null: false
    QDate toDate() const;      // Null: invalid date

private:
    QVariant value_;
    ColumnKind kind_ = ColumnKind::Text;
};

class Recordset;

// The text of a statement that a loop makes row after row, written into one
// buffer that keeps its memory from one statement to the next.
//   StatementText ins;
//   ins.begin(u"INSERT INTO T (a,b) VALUES (").q(a) << u",";
//   ins.q(b) << u")";
//   con.Execute(ins.text());
class StatementText {
public:
    StatementText &begin(QStringView text)
    {
        s_.resize(0);
        return *this << text;
    }
    StatementText &operator<<(QStringView text)
    {
        s_.append(text);
        return *this;
    }
    // The text between apostrophes, as the statements write their values.
    StatementText &q(QStringView text)
    {
        s_.append(QLatin1Char('\'')).append(text).append(QLatin1Char('\''));
        return *this;
    }
    const QString &text() const { return s_; }

private:
    QString s_;
};

// Hears every statement text as it is sent on any connection, before it
// runs (tests record what the forms send). Returns the listener it replaces;
// an empty function stops listening.
using StatementListener = std::function<void(const QString &sql)>;
StatementListener setStatementListener(StatementListener listener);

class Connection {
public:
    Connection();
    ~Connection();
    Connection(const Connection &) = delete;
    Connection &operator=(const Connection &) = delete;

    int ConnectionTimeout = 100;  // kept for the statement texts; SQLite waits this many seconds on a lock

    // Opens the file named after "Data Source=" in the connection string.
    // A missing file is a DatabaseError; a file is never created here.
    void Open(const QString &connectionString);
    void Close();
    int State() const;  // 1 open, 0 closed
    QString filePath() const;

    // Runs one statement. A read gives a forward-only Recordset; any other
    // statement gives a closed one and the rows affected in *recordsAffected.
    Recordset Execute(const QString &sql, long *recordsAffected = nullptr);

    // Creates a new database file with every table of the schema (used by
    // tools/mkdb). An existing file is an error; it is never overwritten.
    static void createFile(const QString &path);
    // True for a database file of the system: SQLite's header and the
    // Parametros table every file of the system has. Reads the file only.
    static bool isSystemFile(const QString &path);

    struct Impl;
    Impl *impl() const { return impl_.get(); }

private:
    std::unique_ptr<Impl> impl_;
};

class Recordset {
public:
    Recordset();
    ~Recordset();
    Recordset(Recordset &&) noexcept;
    Recordset &operator=(Recordset &&) noexcept;

    // Keyset open (cursorType 1): recordCount gives the number of rows. A
    // recordset from Connection::Execute is forward-only: recordCount is -1,
    // as the original interface gave. Every recordset holds the rows as they
    // were when the statement ran.
    void Open(const QString &sql, Connection &con, int cursorType = 1, int lockType = 2);
    void Close();
    int State() const;  // 1 open, 0 closed

    bool eof() const;
    void moveNext();
    void moveFirst();
    long recordCount() const;

    // Field of the current row by column name, without regard to case.
    // An unknown column name is a DatabaseError.
    const Field &operator[](const QString &column) const;
    const Field &field(const QString &column) const { return (*this)[column]; }
    QStringList columnNames() const;
    // Field of the current row by position (0-based), for tools that list
    // every column, where two tables may give one name.
    const Field &fieldAt(int index) const;

    struct Impl;

private:
    friend class Connection;
    std::unique_ptr<Impl> impl_;
};
