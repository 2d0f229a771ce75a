#pragma once
// Every choice of a file or folder goes through here, so that a script can
// answer it (habdrive's `file`) where a person would use the dialog.
#include <QString>
#include <functional>

class QWidget;

enum class EscolhaArquivo { Abrir, Salvar, Pasta };

// Asks for a file to open, a file to save or a folder, starting at inicio;
// filtro as QFileDialog takes it ("Documentos PDF (*.pdf)"). The empty text
// when the choice was cancelled.
QString escolheArquivo(QWidget *parent, EscolhaArquivo tipo, const QString &titulo, const QString &inicio,
                       const QString &filtro = QString());

// Answers every choice in place of the dialog; an empty function restores the
// dialog. Returns the one it replaces.
using EscolhaHandler = std::function<QString(EscolhaArquivo tipo, const QString &titulo, const QString &inicio)>;
EscolhaHandler setEscolhaHandler(EscolhaHandler handler);
