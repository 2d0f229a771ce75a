#pragma once
// The tables and columns of every database file, read from schema/tables.def
// (compiled in). tools/mkdb builds the template files from it, and the data
// store knows from the declared types which kind each column has.
#include "core/datastore.h"

#include <QString>
#include <QStringList>
#include <vector>

struct ColumnDef {
    QString name;
    ColumnKind kind = ColumnKind::Text;
    QString defaultValue;  // SQL literal; empty: 0 for numbers and Yes/No, Null otherwise
};

struct TableDef {
    QString name;
    QStringList key;
    std::vector<ColumnDef> columns;

    const ColumnDef *column(const QString &name) const;  // without regard to case
};

class SchemaCatalog {
public:
    // The catalog of schema/tables.def, parsed once.
    static const SchemaCatalog &instance();
    // Parses text in the format of schema/tables.def. Malformed text throws
    // std::runtime_error naming the line.
    static SchemaCatalog parse(const QString &text);

    const std::vector<TableDef> &tables() const { return tables_; }
    const TableDef *table(const QString &name) const;  // without regard to case

    // CREATE TABLE and CREATE INDEX statements in SQLite's own dialect.
    QStringList createStatements() const;

    // The declared SQLite type that stands for a kind, and back. Declared
    // types give the column affinity too: text and dates TEXT, money REAL,
    // numbers and booleans NUMERIC, counters INTEGER.
    static QString declaredType(ColumnKind kind);
    static ColumnKind kindOfDeclaredType(const char *declType, bool *known = nullptr);

private:
    std::vector<TableDef> tables_;
};
