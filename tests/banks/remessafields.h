#pragma once
// Reads a remittance record back by its position table, field by field.
#include <QString>
#include <gtest/gtest.h>

#include <initializer_list>

// The field at positions from..to (1-based, both included).
inline QString pos(const QString &record, int from, int to)
{
    return record.mid(from - 1, to - from + 1);
}
inline QString blanks(int n) { return QString(n, u' '); }
inline QString zeros(int n) { return QString(n, u'0'); }
inline QString padded(const QString &text, int width) { return text.leftJustified(width); }

struct FieldAt {
    int from;
    int to;
    QString text;
};

// Checks every field at its positions; a mismatch names the positions.
inline void expectFields(const QString &record, std::initializer_list<FieldAt> fields)
{
    for (const FieldAt &f : fields)
        EXPECT_EQ(pos(record, f.from, f.to), f.text) << "positions " << f.from << "-" << f.to;
}
