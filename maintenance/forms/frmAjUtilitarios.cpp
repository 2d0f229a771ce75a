#include "maintenance/forms/frmAjUtilitarios.h"

#include "core/dbfiles.h"
#include "core/prompter.h"
#include "core/session.h"
#include "core/widgets/escolhaarquivo.h"
#include "core/widgets/grade.h"
#include "core/widgets/keyboard.h"
#include "core/widgets/modal.h"
#include "maintenance/arquivos.h"
#include "ui_frmAjUtilitarios.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QLocale>

namespace {

const int kColArquivo = 2, kColTamanho = 3, kColSituacao = 4;

QString tamanho(qint64 bytes) { return QLocale().toString((bytes + 1023) / 1024) + QStringLiteral(" KB"); }

} // namespace

frmAjUtilitarios::frmAjUtilitarios(QWidget *parent) : QWidget(parent)
{
    Ui::frmAjUtilitarios ui;
    ui.setupUi(this);
    tdbArquivos_ = ui.tdbArquivos;
    optSelecionado_ = ui.optSelecionado;
    optTodos_ = ui.optTodos;
    txtPasta_ = ui.txtPasta;
    lblSituacao_ = ui.lblSituacao;
    pbrArquivos_ = ui.pbrArquivos;
    botoes_ = {ui.cmdPasta, ui.cmdCopia, ui.cmdRestaura, ui.cmdVerifica, ui.cmdCompacta, ui.cmdSair};
    connect(ui.cmdPasta, &QPushButton::clicked, this, &frmAjUtilitarios::cmdPasta_Click);
    connect(ui.cmdCopia, &QPushButton::clicked, this, &frmAjUtilitarios::cmdCopia_Click);
    connect(ui.cmdRestaura, &QPushButton::clicked, this, &frmAjUtilitarios::cmdRestaura_Click);
    connect(ui.cmdVerifica, &QPushButton::clicked, this, &frmAjUtilitarios::cmdVerifica_Click);
    connect(ui.cmdCompacta, &QPushButton::clicked, this, &frmAjUtilitarios::cmdCompacta_Click);
    connect(ui.cmdSair, &QPushButton::clicked, this, [this] { fechaForm(*this); });
    aplicaTeclado(*this);

    tdbArquivos_->modelo()->setTitulos({QStringLiteral("Código"), QStringLiteral("Condomínio"), QStringLiteral("Arquivo"),
                                        QStringLiteral("Tamanho"), QStringLiteral("Situação")});
    tdbArquivos_->modelo()->setColunaNumerica(0);
    enche();
    pbrArquivos_->setRange(0, std::max(1, int(arquivos_.size())));
    pbrArquivos_->setValue(0);
    lblSituacao_->setText(QStringLiteral("Escolha o arquivo na lista, ou todos, e a ação."));
}

void frmAjUtilitarios::enche()
{
    arquivos_ = arquivosDaInstalacao(session.sysPath);
    GradeModel *m = tdbArquivos_->modelo();
    m->limpa();
    int ativo = 0;
    for (const ArquivoInstalacao &a : arquivos_) {
        if (a.arquivo == session.arqAtivo)
            ativo = m->rowCount();
        m->adiciona({QString::number(a.codigo), a.nome, a.arquivo, tamanho(QFileInfo(session.sysPath + a.arquivo).size()),
                     QString()});
    }
    tdbArquivos_->ajustaColunas();
    tdbArquivos_->posiciona(ativo);
}

const ArquivoInstalacao *frmAjUtilitarios::selecionado() const
{
    const int linha = tdbArquivos_->linhaAtual();
    if (linha < 0)
        return nullptr;
    const QString arquivo = tdbArquivos_->texto(linha, kColArquivo);
    for (const ArquivoInstalacao &a : arquivos_)
        if (a.arquivo == arquivo)
            return &a;
    return nullptr;
}

QList<ArquivoInstalacao> frmAjUtilitarios::escolhidos() const
{
    if (optTodos_->isChecked())
        return arquivos_;
    if (const ArquivoInstalacao *a = selecionado())
        return {*a};
    return {};
}

void frmAjUtilitarios::situacao(const QString &arquivo, const QString &texto)
{
    GradeModel *m = tdbArquivos_->modelo();
    const int linha = m->linhaDe(kColArquivo, arquivo);
    if (linha < 0)
        return;
    QStringList celulas = m->linha(linha);
    celulas[kColTamanho] = tamanho(QFileInfo(session.sysPath + arquivo).size());
    celulas[kColSituacao] = texto;
    m->altera(linha, celulas);
}

void frmAjUtilitarios::habilita(bool sim)
{
    for (QPushButton *b : botoes_)
        b->setEnabled(sim);
}

int frmAjUtilitarios::percorre(const QString &acao, const QList<ArquivoInstalacao> &lista,
                               const std::function<QString(const ArquivoInstalacao &)> &passo)
{
    if (lista.isEmpty()) {
        MsgBox(QStringLiteral("Selecione um arquivo na lista, ou marque Todos os arquivos."), vbExclamation,
               QStringLiteral("Atenção"));
        return -1;
    }
    Ampulheta ampulheta;
    habilita(false);
    pbrArquivos_->setRange(0, int(lista.size()));
    pbrArquivos_->setValue(0);
    int falhas = 0;
    for (int i = 0; i < lista.size(); ++i) {
        const ArquivoInstalacao &a = lista[i];
        lblSituacao_->setText(QStringLiteral("%1 %2 (%3 de %4)...").arg(acao, a.arquivo).arg(i + 1).arg(lista.size()));
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
        QString texto;
        try {
            texto = passo(a);
        } catch (const FalhaArquivo &e) {
            texto = QStringLiteral("Falhou: ") + e.motivo();
            ++falhas;
        }
        situacao(a.arquivo, texto);
        pbrArquivos_->setValue(i + 1);
    }
    habilita(true);
    return falhas;
}

void frmAjUtilitarios::cmdPasta_Click()
{
    const QString pasta = escolheArquivo(this, EscolhaArquivo::Pasta, QStringLiteral("Pasta das cópias de segurança"),
                                         txtPasta_->text().isEmpty() ? session.sysPath : txtPasta_->text());
    if (!pasta.isEmpty())
        txtPasta_->setText(pasta);
}

void frmAjUtilitarios::cmdCopia_Click()
{
    if (txtPasta_->text().isEmpty())
        cmdPasta_Click();
    const QString pasta = txtPasta_->text();
    if (pasta.isEmpty())
        return;
    int copiados = 0;
    const QDate hoje = QDate::currentDate();
    const int falhas = percorre(QStringLiteral("Copiando"), escolhidos(), [&](const ArquivoInstalacao &a) {
        const QString copia = copiaSeguranca(session.sysPath, a, pasta, hoje);
        ++copiados;
        return QStringLiteral("Copiado: ") + QFileInfo(copia).fileName();
    });
    if (falhas < 0)
        return;
    lblSituacao_->setText(QStringLiteral("Cópia de segurança: %1 arquivo(s) copiado(s) para a pasta \"%2\".").arg(copiados).arg(pasta));
    ponteiroNormal();
    if (falhas == 0)
        MsgBox(QStringLiteral("Cópia de segurança concluída: %1 arquivo(s) copiado(s) para a pasta \"%2\".").arg(copiados).arg(pasta),
               vbInformation, QStringLiteral("Atenção"));
    else
        MsgBox(QStringLiteral("A cópia de %1 arquivo(s) falhou; veja a coluna Situação. Os demais foram copiados para a pasta \"%2\".")
                   .arg(falhas)
                   .arg(pasta),
               vbExclamation, QStringLiteral("Atenção"));
}

void frmAjUtilitarios::cmdRestaura_Click()
{
    const ArquivoInstalacao *escolhido = selecionado();
    if (!escolhido) {
        MsgBox(QStringLiteral("Selecione na lista o arquivo sobre o qual a cópia será restaurada."), vbExclamation,
               QStringLiteral("Atenção"));
        return;
    }
    const ArquivoInstalacao a = *escolhido;
    const QString copia = escolheArquivo(this, EscolhaArquivo::Abrir, QStringLiteral("Cópia a restaurar"),
                                         txtPasta_->text().isEmpty() ? session.sysPath : txtPasta_->text(),
                                         QStringLiteral("Cópias de segurança (*.mdb *.bak);;Todos os arquivos (*)"));
    if (copia.isEmpty())
        return;
    QString problema;
    {
        Ampulheta ampulheta;
        problema = problemaDaCopia(copia);
    }
    if (!problema.isEmpty()) {
        lblSituacao_->setText(QStringLiteral("Restauração recusada: nada foi alterado."));
        MsgBox(problema + QStringLiteral("\n\nNada foi alterado."), vbCritical, QStringLiteral("Atenção..."));
        return;
    }
    const QDateTime agora = QDateTime::currentDateTime();
    const QString guardado = nomeAntesDaRestauracao(a, agora);
    const QString pergunta =
        QStringLiteral("Restaurar a cópia %1 sobre o arquivo %2 (%3) ?\n\nTudo o que foi gravado nesse arquivo depois da "
                       "cópia será substituído. Antes, o arquivo atual será guardado como \"%4\" na pasta do sistema.")
            .arg(QFileInfo(copia).fileName(), a.arquivo, a.nome, guardado);
    if (MsgBox(pergunta, vbYesNo + vbQuestion + vbDefaultButton2, QStringLiteral("Atenção...")) != vbYes)
        return;
    const int falhas = percorre(QStringLiteral("Restaurando"), {a}, [&](const ArquivoInstalacao &alvo) {
        restauraCopia(session.sysPath, alvo, copia, agora);
        return QStringLiteral("Restaurado de ") + QFileInfo(copia).fileName();
    });
    ponteiroNormal();
    if (falhas == 0) {
        lblSituacao_->setText(QStringLiteral("Cópia restaurada sobre %1.").arg(a.arquivo));
        MsgBox(QStringLiteral("Cópia restaurada sobre %1. O arquivo anterior foi guardado como \"%2\".").arg(a.arquivo, guardado),
               vbInformation, QStringLiteral("Atenção"));
    } else if (falhas > 0) {
        lblSituacao_->setText(QStringLiteral("Restauração não feita."));
        MsgBox(QStringLiteral("A restauração não foi feita; o arquivo %1 ficou como estava. Veja a coluna Situação.").arg(a.arquivo),
               vbCritical, QStringLiteral("Atenção..."));
    }
}

void frmAjUtilitarios::cmdVerifica_Click()
{
    QStringList problemas;
    const int falhas = percorre(QStringLiteral("Verificando"), escolhidos(), [&](const ArquivoInstalacao &a) {
        const QStringList achados = checkDatabase(session.sysPath + a.arquivo);
        if (achados.isEmpty())
            return QStringLiteral("Íntegro");
        problemas << a.arquivo + QStringLiteral(": ") + achados.first();
        return QStringLiteral("Danificado: ") + achados.join(QStringLiteral("; "));
    });
    if (falhas < 0)
        return;
    ponteiroNormal();
    const int n = int(escolhidos().size());
    if (problemas.isEmpty() && falhas == 0) {
        lblSituacao_->setText(QStringLiteral("Verificação: %1 arquivo(s) íntegro(s).").arg(n));
        MsgBox(QStringLiteral("Verificação concluída: %1 arquivo(s) verificado(s), todos íntegros.").arg(n), vbInformation,
               QStringLiteral("Atenção"));
    } else {
        lblSituacao_->setText(QStringLiteral("Verificação: %1 arquivo(s) com problemas.").arg(problemas.size()));
        MsgBox(QStringLiteral("Verificação concluída: %1 arquivo(s) com problemas:\n\n").arg(problemas.size())
                   + problemas.join(u'\n')
                   + QStringLiteral("\n\nRestaure a última cópia de segurança desses arquivos."),
               vbExclamation, QStringLiteral("Atenção"));
    }
}

void frmAjUtilitarios::cmdCompacta_Click()
{
    int compactados = 0;
    const int falhas = percorre(QStringLiteral("Compactando"), escolhidos(), [&](const ArquivoInstalacao &a) {
        qint64 antes = 0, depois = 0;
        compactaArquivo(session.sysPath + a.arquivo, antes, depois);
        ++compactados;
        return QStringLiteral("Compactado: de %1 para %2").arg(tamanho(antes), tamanho(depois));
    });
    if (falhas < 0)
        return;
    ponteiroNormal();
    lblSituacao_->setText(QStringLiteral("Compactação: %1 arquivo(s) compactado(s).").arg(compactados));
    if (falhas == 0)
        MsgBox(QStringLiteral("Compactação concluída: %1 arquivo(s) compactado(s).").arg(compactados), vbInformation,
               QStringLiteral("Atenção"));
    else
        MsgBox(QStringLiteral("A compactação de %1 arquivo(s) falhou; veja a coluna Situação.").arg(falhas), vbExclamation,
               QStringLiteral("Atenção"));
}
