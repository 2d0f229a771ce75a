#pragma once
// The file steps of the adjustment and the data utilities, each of which
// leaves a file either as it was or wholly replaced: a new content is written
// under a temporary name and then renamed over the old name in one step of
// the file system. A failure is a FalhaArquivo with the error number shown
// to the user and a message in Portuguese.
#include <QString>
#include <stdexcept>

class FalhaArquivo : public std::runtime_error {
public:
    FalhaArquivo(int numero, const QString &arquivo, const QString &motivo)
        : std::runtime_error(motivo.toStdString()), numero_(numero), arquivo_(arquivo), motivo_(motivo)
    {
    }
    int numero() const { return numero_; }
    QString arquivo() const { return arquivo_; }
    QString motivo() const { return motivo_; }

private:
    int numero_;
    QString arquivo_;
    QString motivo_;
};

// The error numbers the original run showed: a file not found, a file that
// could not be written or renamed, and a failure of the database engine.
constexpr int kErroArquivoNaoEncontrado = 53;
constexpr int kErroAcessoArquivo = 75;
constexpr int kErroBanco = -2147467259;

// Renames de to para, replacing para when it exists, in one step, and makes
// the rename durable.
void substituiArquivo(const QString &de, const QString &para);
// Copies de to para byte for byte (para is replaced), durably.
void copiaArquivo(const QString &de, const QString &para);
// Removes a database file that nothing holds open, with its journal files.
void removeBanco(const QString &caminho);
// True when the file has a write-ahead journal beside it: some program holds
// it open, or one that held it was stopped; it must not be renamed then.
bool temDiario(const QString &caminho);
// The online copy of the database file origem to destino, through the
// temporary file destino + ".tmp": destino is either as it was or the whole
// copy. A database failure is turned into a FalhaArquivo too.
void copiaBancoSegura(const QString &origem, const QString &destino);
