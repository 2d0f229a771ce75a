#include "core/widgets/escolhaarquivo.h"

#include <QFileDialog>
#include <utility>

namespace {
EscolhaHandler &handler()
{
    static EscolhaHandler h;
    return h;
}
}

EscolhaHandler setEscolhaHandler(EscolhaHandler h) { return std::exchange(handler(), std::move(h)); }

QString escolheArquivo(QWidget *parent, EscolhaArquivo tipo, const QString &titulo, const QString &inicio,
                       const QString &filtro)
{
    if (handler())
        return handler()(tipo, titulo, inicio);
    switch (tipo) {
    case EscolhaArquivo::Abrir: return QFileDialog::getOpenFileName(parent, titulo, inicio, filtro);
    case EscolhaArquivo::Salvar: return QFileDialog::getSaveFileName(parent, titulo, inicio, filtro);
    case EscolhaArquivo::Pasta: return QFileDialog::getExistingDirectory(parent, titulo, inicio);
    }
    return QString();
}
