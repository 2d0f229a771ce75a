#pragma once
// Whole database files: the online copy, the integrity check and the
// compaction, for the data utilities and the version adjustment. As in the
// rest of the data store, nothing of SQLite leaks past here; a failure is a
// DatabaseError with a message in Portuguese.
#include <QString>
#include <QStringList>

// Copies the database file source into target with the engine's online copy:
// the copy is the file as every connection of this program sees it (what a
// form wrote and the journal still holds is in it), read in one go, and
// written to target in one transaction, so that target is either as it was
// or the whole copy. A missing target is created; an existing one has its
// whole content replaced, and the connections open on it read the copy from
// their next statement on. The caller checks the source first (checkDatabase).
void backupDatabase(const QString &source, const QString &target);

// What is wrong with a database file, one line a finding; empty when it is
// sound. Looks at the file itself (an SQLite file, and of the size its header
// gives, so that a copy cut short is caught before any page is read), runs the
// engine's integrity check, and asks for the Parametros table that every file
// of the system has. Reads the file only.
QStringList checkDatabase(const QString &path);

// True while a Connection of this program has the file open (a form that
// holds it, for one): a file must not be renamed or replaced then.
bool databaseInUse(const QString &path);

// Rebuilds the file without its free pages, in place. The size it had and
// has, in bytes, go to *before and *after when given.
void compactDatabase(const QString &path, qint64 *before = nullptr, qint64 *after = nullptr);
