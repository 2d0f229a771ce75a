#pragma once
// The failures that end a routine. Neither is ever mistaken for a result:
// callers let them through to the application's top level, or stop the run
// with their message.
#include <QString>
#include <stdexcept>

// A failure of the run that the original raised as a runtime error (for
// example ZeroEsq of a text longer than its width).
class RunFailure : public std::runtime_error {
public:
    explicit RunFailure(const QString &message) : std::runtime_error(message.toStdString()), message_(message) {}
    QString message() const { return message_; }

private:
    QString message_;
};

// A failing Open or statement. Forms do not catch it: the application's top
// level shows it in an "Erro Fatal" box and ends.
class DatabaseError : public std::runtime_error {
public:
    DatabaseError(const QString &message, const QString &statement)
        : std::runtime_error((statement.isEmpty() ? message : message + QStringLiteral(" [") + statement + u']').toStdString()),
          message_(message), statement_(statement)
    {
    }
    QString message() const { return message_; }
    QString statement() const { return statement_; }

private:
    QString message_;
    QString statement_;
};
