#include "motorista.h"

#include "core/datastore.h"
#include "core/forms/formcatalog.h"
#include "core/forms/mdiHabitarium.h"
#include "core/prompter.h"
#include "core/widgets/escolhaarquivo.h"
#include "core/widgets/modal.h"
#include "reporting/forms/frmRelatorio.h"
#include "reporting/imprime.h"
#include <QAbstractButton>
#include <QAbstractItemView>
#include <QProgressBar>
#include <QAbstractSpinBox>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPointer>
#include <QRadioButton>
#include <QStyleOptionButton>
#include <QTabWidget>
#include <QTableView>
#include <QTest>
#include <QTextEdit>
#include <QToolBar>
#include <cstdio>
#include <cstdlib>
#include <deque>
#include <utility>
#include <vector>

QString umaLinha(QString texto)
{
    texto.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    texto.replace(u'\r', u'\n');
    return texto.replace(QStringLiteral("\n"), QStringLiteral("\\n"));
}

namespace {

// A caption as shown: "&Gravar" is "Gravar", "&&" one "&".
QString semAtalho(QString texto)
{
    texto.replace(QStringLiteral("&&"), QStringLiteral("\x01"));
    texto.remove(u'&');
    return texto.replace(u'\x01', u'&');
}

QString nomeDe(const QWidget &w)
{
    return w.objectName().isEmpty() ? QString::fromLatin1(w.metaObject()->className()) : w.objectName();
}

void processa(bool apagaPendentes)
{
    for (int n = 0; n < 3; ++n)
        QCoreApplication::processEvents();
    if (apagaPendentes)
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}
} // namespace

Motorista::Motorista(QList<Comando> comandos, QString pdfDir) : comandos_(std::move(comandos)), pdfDir_(std::move(pdfDir)) {}

void Motorista::escreve(const QString &linha)
{
    sincroniza();
    bruto(linha);
}

void Motorista::executa(QPointer<QDialog> modal, bool dentroDeDialogo)
{
    while (true) {
        if (fimProgramaPedido())
            sai(kProgramaTerminou);
        if (dentroDeDialogo && (!modal || !modal->isVisible()))
            return;
        if (proximo_ >= comandos_.size())
            termina();
        const Comando &c = comandos_[proximo_++];
        linha_ = c.linha;
        try {
            roda(c);
        } catch (...) {
            trataFalhaNoTopo();
        }
        if (fimProgramaPedido())
            sai(kProgramaTerminou);
        processa(modais_.empty());
        if (fimProgramaPedido())
            sai(kProgramaTerminou);
        sincroniza();
    }
}

void Motorista::abreDialogo(QDialog &d)
{
    if (fimProgramaPedido())
        sai(kProgramaTerminou);
    QPointer<QDialog> dialogo(&d);
    const QString nome = nomeDe(d);
    escreve(QStringLiteral("OPEN ") + nome);
    modais_.push_back(dialogo);
    // The dialog is where a person acts now; the form chosen before it comes back after it.
    const QPointer<QWidget> escolhido = std::exchange(alvo_, nullptr);
    d.show();
    ativa(&d);
    processa(false);
    executa(dialogo, true);
    modais_.pop_back();
    alvo_ = escolhido;
    escreve(QStringLiteral("CLOSE ") + nome);
}

int Motorista::msgBox(const QString &texto, int estilo, const QString &titulo)
{
    const QList<PromptButton> botoes = promptButtons(estilo);
    QStringList legendas;
    for (const PromptButton &b : botoes)
        legendas << b.caption;
    int resposta = defaultAnswer(estilo);
    QString escolhida;
    bool padrao = respostas_.empty();
    if (padrao) {
        semResposta_ = true;
        for (const PromptButton &b : botoes)
            if (b.answer == resposta)
                escolhida = b.caption;
    } else {
        const Pendente r = respostas_.front();
        respostas_.pop_front();
        const qsizetype i = legendas.indexOf(r.texto);
        if (i < 0) {
            escreve(QStringLiteral("PROMPT ") + linhaDaCaixa(titulo, texto, legendas) + QStringLiteral("|"));
            erro(QStringLiteral("a resposta \"%1\" não é um botão desta caixa (%2)").arg(r.texto, legendas.join(u'/')),
                 r.linha);
        }
        resposta = botoes[i].answer;
        escolhida = r.texto;
    }
    escreve(QStringLiteral("PROMPT ") + linhaDaCaixa(titulo, texto, legendas) + u'|' + umaLinha(escolhida)
            + (padrao ? QStringLiteral("|default") : QString()));
    ++caixas_;
    return resposta;
}

QString Motorista::inputBox(const QString &texto, const QString &titulo, const QString &padraoTexto)
{
    const QStringList legendas{QStringLiteral("OK"), QStringLiteral("Cancelar")};
    const bool padrao = respostas_.empty();
    QString resposta = padraoTexto;
    if (padrao) {
        semResposta_ = true;
    } else {
        resposta = respostas_.front().texto;
        respostas_.pop_front();
    }
    escreve(QStringLiteral("PROMPT ") + linhaDaCaixa(titulo, texto, legendas) + u'|' + umaLinha(resposta)
            + (padrao ? QStringLiteral("|default") : QString()));
    ++caixas_;
    return resposta;
}

QString Motorista::escolheArquivo()
{
    if (arquivos_.empty()) {
        semResposta_ = true;
        std::fprintf(stderr, "habdrive: linha %d: uma escolha de arquivo sem `file`; cancelada\n", linha_);
        return QString();
    }
    const QString caminho = arquivos_.front().texto;
    arquivos_.pop_front();
    return caminho;
}

void Motorista::relatorio(const std::shared_ptr<const ReportDocument> &doc, bool preview)
{
    QString modelo = QFileInfo(doc->templateName).fileName();
    if (modelo.endsWith(QLatin1String(".rpt"), Qt::CaseInsensitive))
        modelo.chop(4);
    QString caminho;
    if (!pdfDir_.isEmpty()) {
        ++relatorios_;
        caminho = QDir(pdfDir_).absoluteFilePath(QStringLiteral("%1-%2.pdf").arg(relatorios_, 3, 10, QLatin1Char('0')).arg(modelo));
        QString motivo;
        if (!writePdf(*doc, caminho, &motivo)) {
            std::fprintf(stderr, "habdrive: %s: %s\n", caminho.toUtf8().constData(), motivo.toUtf8().constData());
            falhaPdf_ = true;
            caminho.clear();
        }
    }
    escreve(QStringLiteral("REPORT %1|%2|%3|%4").arg(modelo, umaLinha(doc->title)).arg(doc->pageCount()).arg(caminho));
    if (pdfDir_.isEmpty() && preview && mdi)
        showReport(mdi->area(), doc);
}

[[noreturn]] void Motorista::termina()
{
    sincroniza();
    for (const Pendente &p : respostas_)
        bruto(QStringLiteral("UNUSED ") + umaLinha(p.texto));
    for (const Pendente &p : arquivos_)
        bruto(QStringLiteral("UNUSED ") + umaLinha(p.texto));
    if (!respostas_.empty() || !arquivos_.empty())
        semResposta_ = true;
    bruto(QStringLiteral("END"));
    sai(falhaPdf_ ? kOutraFalha : semResposta_ ? kSemResposta : kTudoCerto);
}

[[noreturn]] void Motorista::erro(const QString &motivo, int linha)
{
    sincroniza();
    bruto(QStringLiteral("ERROR line %1: %2").arg(linha ? linha : linha_).arg(motivo));
    sai(kComandoFalhou);
}

void Motorista::bruto(const QString &linha)
{
    if (saida) {
        saida(linha);
        return;
    }
    const QByteArray bytes = linha.toUtf8();
    std::fwrite(bytes.constData(), 1, size_t(bytes.size()), stdout);
    std::fputc('\n', stdout);
    std::fflush(stdout);
}

void Motorista::sai(int codigo)
{
    if (fim)
        fim(codigo);
    std::fflush(stdout);
    std::fflush(stderr);
    std::_Exit(codigo);  // the program's windows and files need no tidying
}

QString Motorista::linhaDaCaixa(const QString &titulo, const QString &texto, const QStringList &legendas)
{
    return umaLinha(titulo.isEmpty() ? QStringLiteral("Habitarium") : titulo) + u'|' + umaLinha(texto) + u'|'
        + legendas.join(u'/');
}

void Motorista::sincroniza()
{
    if (!mdi)
        return;
    const QList<QMdiSubWindow *> abertas = mdi->area()->subWindowList();
    for (auto it = filhos_.begin(); it != filhos_.end();) {
        if (!it->sub || it->sub->isHidden() || !abertas.contains(it->sub.data())) {
            bruto(QStringLiteral("CLOSE ") + it->nome);
            it = filhos_.erase(it);
        } else {
            ++it;
        }
    }
    for (QMdiSubWindow *sub : abertas) {
        if (sub->isHidden() || !sub->widget())
            continue;
        bool conhecida = false;
        for (const Filho &f : filhos_)
            conhecida = conhecida || f.sub == sub;
        if (!conhecida) {
            filhos_.push_back({sub, nomeDe(*sub->widget())});
            bruto(QStringLiteral("OPEN ") + filhos_.back().nome);
        }
    }
}

QMdiSubWindow *Motorista::subDe(QWidget *form) const
{
    return form ? qobject_cast<QMdiSubWindow *>(form->parentWidget()) : nullptr;
}

bool Motorista::aberto(QWidget *form) const
{
    if (!form)
        return false;
    if (auto *sub = subDe(form))
        return !sub->isHidden() && mdi->area()->subWindowList().contains(sub);
    return form->isVisible();
}

QWidget *Motorista::formAtual()
{
    if (alvo_ && aberto(alvo_))
        return alvo_;
    alvo_ = nullptr;
    if (!modais_.empty() && modais_.back())
        return modais_.back();
    if (QMdiSubWindow *sub = mdi ? mdi->area()->currentSubWindow() : nullptr)
        if (!sub->isHidden() && sub->widget())
            return sub->widget();
    erro(QStringLiteral("nenhum formulário aberto"));
}

void Motorista::confereModal(QWidget *form)
{
    if (!modais_.empty() && modais_.back() && modais_.back() != form)
        erro(QStringLiteral("%1 está aberto por cima de %2").arg(nomeDe(*modais_.back()), form ? nomeDe(*form) : QStringLiteral("mdiHabitarium")));
}

QWidget *Motorista::controle(const QString &nome, bool agir)
{
    QWidget *form = formAtual();
    QWidget *w = form->findChild<QWidget *>(nome);
    if (!w)
        erro(QStringLiteral("não há o controle %1 em %2").arg(nome, nomeDe(*form)));
    if (agir) {
        confereModal(form);
        if (!w->isVisible())
            erro(QStringLiteral("%1 está oculto").arg(nome));
        if (!w->isEnabled())
            erro(QStringLiteral("%1 está desabilitado").arg(nome));
        traz(form);
    }
    return w;
}

void Motorista::traz(QWidget *form)
{
    if (auto *sub = subDe(form))
        if (mdi->area()->currentSubWindow() != sub)
            mdi->area()->setActiveSubWindow(sub);
    ativa(form);
}

void Motorista::ativa(QWidget *w)
{
    QWidget *janela = w->window();
    if (QApplication::activeWindow() == janela)
        return;
    janela->raise();
    janela->activateWindow();
    processa(false);
    if (QApplication::activeWindow() != janela)
        QApplication::setActiveWindow(janela);
}

void Motorista::daFoco(QWidget *w)
{
    if (w->hasFocus())
        return;
    w->setFocus(Qt::MouseFocusReason);
    processa(false);  // the field selects its text after the focus arrives
}

void Motorista::digita(QWidget *w, const QString &texto)
{
    for (const QChar c : texto) {
        const Qt::Key tecla = c == u' ' ? Qt::Key_Space : c.unicode() < 0x100 ? Qt::Key(c.toUpper().unicode()) : Qt::Key_unknown;
        QWidget *foco = QApplication::focusWidget() ? QApplication::focusWidget() : w;
        QTest::sendKeyEvent(QTest::Click, foco, tecla, QString(c), Qt::NoModifier);
    }
}

void Motorista::selecionaTudo(QWidget *w)
{
    if (auto *combo = qobject_cast<QComboBox *>(w))
        w = combo->lineEdit();
    if (auto *e = qobject_cast<QLineEdit *>(w))
        e->selectAll();
    else if (auto *t = qobject_cast<QTextEdit *>(w))
        t->selectAll();
    else if (auto *p = qobject_cast<QPlainTextEdit *>(w))
        p->selectAll();
    else if (auto *s = qobject_cast<QAbstractSpinBox *>(w))
        s->selectAll();
}

void Motorista::clica(QWidget *w, QPoint onde)
{
    const int antes = caixas_;
    QPointer<QWidget> alvo(w);
    QTest::mousePress(w, Qt::LeftButton, {}, onde);
    if (!alvo)
        return;
    if (caixas_ != antes)
        if (auto *b = qobject_cast<QAbstractButton *>(w))
            b->setDown(false);  // the release then clicks nothing
    QTest::mouseRelease(w, Qt::LeftButton, {}, onde);
}

QAbstractItemView *Motorista::vista(const QString &nome, bool agir)
{
    auto *v = qobject_cast<QAbstractItemView *>(controle(nome, agir));
    if (!v || !v->model())
        erro(QStringLiteral("%1 não é uma grade nem uma lista").arg(nome));
    return v;
}

QList<int> Motorista::colunasVisiveis(QAbstractItemView *v)
{
    QList<int> colunas;
    auto *tabela = qobject_cast<QTableView *>(v);
    for (int c = 0; c < v->model()->columnCount(); ++c)
        if (!tabela || !tabela->isColumnHidden(c))
            colunas << c;
    if (auto *lista = qobject_cast<QListView *>(v))
        colunas = {lista->modelColumn()};
    return colunas;
}

QString Motorista::valorDe(QWidget *w)
{
    if (auto *b = qobject_cast<QAbstractButton *>(w)) {
        if (qobject_cast<QCheckBox *>(w) || qobject_cast<QRadioButton *>(w))
            return b->isChecked() ? QStringLiteral("1") : QStringLiteral("0");
        return semAtalho(b->text());
    }
    if (auto *e = qobject_cast<QLineEdit *>(w))
        return e->displayText();
    if (auto *c = qobject_cast<QComboBox *>(w))
        return c->currentText();
    if (auto *v = qobject_cast<QAbstractItemView *>(w))
        return v->model() ? QString::number(v->model()->rowCount()) : QStringLiteral("0");
    if (auto *l = qobject_cast<QLabel *>(w))
        return l->buddy() ? semAtalho(l->text()) : l->text();
    if (auto *t = qobject_cast<QTabWidget *>(w))
        return semAtalho(t->tabText(t->currentIndex()));
    if (auto *g = qobject_cast<QGroupBox *>(w))
        return semAtalho(g->title());
    if (auto *t = qobject_cast<QTextEdit *>(w))
        return t->toPlainText();
    if (auto *p = qobject_cast<QPlainTextEdit *>(w))
        return p->toPlainText();
    if (auto *s = qobject_cast<QAbstractSpinBox *>(w))
        return s->text();
    if (auto *p = qobject_cast<QProgressBar *>(w))
        return p->text();
    return w->windowTitle();
}

void Motorista::roda(const Comando &c)
{
    const QString &n = c.nome;
    const QStringList &a = c.args;
    if (n == QLatin1String("answer")) {
        respostas_.push_back({a[0], c.linha});
    } else if (n == QLatin1String("file")) {
        arquivos_.push_back({a[0], c.linha});
    } else if (n == QLatin1String("form")) {
        for (auto it = modais_.rbegin(); it != modais_.rend(); ++it)
            if (*it && (*it)->objectName() == a[0] && (*it)->isVisible()) {
                alvo_ = it->data();
                return;
            }
        for (QMdiSubWindow *sub : mdi ? mdi->area()->subWindowList() : QList<QMdiSubWindow *>())
            if (sub->widget() && sub->widget()->objectName() == a[0] && !sub->isHidden()) {
                alvo_ = sub->widget();
                return;
            }
        erro(QStringLiteral("o formulário %1 não está aberto").arg(a[0]));
    } else if (n == QLatin1String("login")) {
        QDialog *senha = nullptr;
        for (const QPointer<QDialog> &d : modais_)
            if (d && d->objectName() == QLatin1String("frmSenha"))
                senha = d;
        if (!senha)
            erro(QStringLiteral("a janela de entrada (frmSenha) não está aberta"));
        alvo_ = senha;
        for (int i = 0; i < 2; ++i) {
            QWidget *campo = controle(i == 0 ? QStringLiteral("txtlogin") : QStringLiteral("txtsenha"), true);
            daFoco(campo);
            selecionaTudo(campo);
            QTest::keyClick(campo, Qt::Key_Delete);
            digita(campo, a[i]);
        }
        QWidget *ok = controle(QStringLiteral("cmdOk"), true);
        clica(ok, ok->rect().center());
    } else if (n == QLatin1String("menu")) {
        if (!mdi)
            erro(QStringLiteral("a janela principal ainda não está aberta"));
        QAction *acao = mdi->acao(a[0]);
        if (!acao || !qobject_cast<QMenu *>(acao->parent()) || acao->menu())
            erro(QStringLiteral("não há a opção de menu %1").arg(a[0]));
        confereModal(nullptr);
        for (QObject *p = acao; p; p = p->parent()) {
            QAction *item = p == acao ? acao : qobject_cast<QMenu *>(p) ? static_cast<QMenu *>(p)->menuAction() : nullptr;
            if (item && !item->isEnabled())
                erro(QStringLiteral("%1 está desabilitado").arg(item == acao ? a[0] : item->objectName()));
        }
        ativa(mdi);
        acao->trigger();
    } else if (n == QLatin1String("open")) {
        // A form of the catalog that no menu entry opens, as the program opens forms.
        if (!mdi)
            erro(QStringLiteral("a janela principal ainda não está aberta"));
        if (!findForm(a[0]))
            erro(QStringLiteral("não há o form %1 no catálogo").arg(a[0]));
        confereModal(nullptr);
        ativa(mdi);
        mdi->abreForm(a[0]);
    } else if (n == QLatin1String("toolbar")) {
        if (!mdi)
            erro(QStringLiteral("a janela principal ainda não está aberta"));
        const QString nome = QStringLiteral("tob%1").arg(a[0].toInt(), 2, 10, QLatin1Char('0'));
        QAction *acao = mdi->acao(nome);
        auto *barra = mdi->findChild<QToolBar *>(QStringLiteral("tobPrincipal"));
        QWidget *botao = acao && barra ? barra->widgetForAction(acao) : nullptr;
        if (!botao)
            erro(QStringLiteral("não há o botão %1 na barra").arg(a[0]));
        confereModal(nullptr);
        if (!acao->isEnabled() || !botao->isEnabled())
            erro(QStringLiteral("o botão %1 da barra está desabilitado").arg(a[0]));
        ativa(mdi);
        clica(botao, botao->rect().center());
    } else if (n == QLatin1String("type")) {
        QWidget *w = controle(a[0], true);
        daFoco(w);
        digita(w, a[1]);
    } else if (n == QLatin1String("key")) {
        QWidget *w = controle(a[0], true);
        daFoco(w);
        QWidget *foco = QApplication::focusWidget() ? QApplication::focusWidget() : w;
        const int tecla = teclaPorNome(a[1]);
        if (a[1].size() == 1)
            digita(w, a[1]);
        else
            QTest::keyClick(foco, Qt::Key(tecla));
    } else if (n == QLatin1String("clear")) {
        QWidget *w = controle(a[0], true);
        daFoco(w);
        selecionaTudo(w);
        QTest::keyClick(QApplication::focusWidget() ? QApplication::focusWidget() : w, Qt::Key_Delete);
    } else if (n == QLatin1String("click")) {
        QWidget *w = controle(a[0], true);
        auto *b = qobject_cast<QAbstractButton *>(w);
        if (!b)
            erro(QStringLiteral("%1 não é um botão").arg(a[0]));
        QPoint onde = b->rect().center();
        QStyleOptionButton opcao;
        opcao.initFrom(b);
        if (qobject_cast<QCheckBox *>(b))
            onde = b->style()->subElementRect(QStyle::SE_CheckBoxIndicator, &opcao, b).center();
        else if (qobject_cast<QRadioButton *>(b))
            onde = b->style()->subElementRect(QStyle::SE_RadioButtonIndicator, &opcao, b).center();
        clica(b, onde);
    } else if (n == QLatin1String("dblclick")) {
        QWidget *w = controle(a[0], true);
        QTest::mouseDClick(w, Qt::LeftButton, {}, w->rect().center());
    } else if (n == QLatin1String("tab")) {
        auto *t = qobject_cast<QTabWidget *>(controle(a[0], true));
        if (!t)
            erro(QStringLiteral("%1 não é uma pasta de abas").arg(a[0]));
        const int i = a[1].toInt() - 1;
        if (i >= t->count())
            erro(QStringLiteral("%1 tem %2 aba(s)").arg(a[0]).arg(t->count()));
        if (!t->isTabEnabled(i))
            erro(QStringLiteral("a aba %1 de %2 está desabilitada").arg(a[1], a[0]));
        t->setCurrentIndex(i);
    } else if (n == QLatin1String("choose")) {
        auto *combo = qobject_cast<QComboBox *>(controle(a[0], true));
        if (!combo)
            erro(QStringLiteral("%1 não é uma caixa de combinação").arg(a[0]));
        int i = combo->findText(a[1], Qt::MatchExactly);
        if (i < 0)
            i = combo->findText(a[1], Qt::MatchStartsWith);
        if (i < 0)
            erro(QStringLiteral("%1 não tem o item \"%2\"").arg(a[0], a[1]));
        daFoco(combo);
        combo->setCurrentIndex(i);
        emit combo->activated(i);
        emit combo->textActivated(combo->itemText(i));
    } else if (n == QLatin1String("row")) {
        QAbstractItemView *v = vista(a[0], true);
        const int r = a[1].toInt() - 1;
        if (r >= v->model()->rowCount())
            erro(QStringLiteral("%1 tem %2 linha(s)").arg(a[0]).arg(v->model()->rowCount()));
        const QList<int> colunas = colunasVisiveis(v);
        const QModelIndex indice = v->model()->index(r, colunas.isEmpty() ? 0 : colunas.first());
        v->scrollTo(indice);
        processa(false);
        clica(v->viewport(), v->visualRect(indice).center());
    } else if (n == QLatin1String("cell")) {
        QAbstractItemView *v = vista(a[0], true);
        const int r = a[1].toInt() - 1, col = a[2].toInt() - 1;
        if (r >= v->model()->rowCount() || col >= v->model()->columnCount())
            erro(QStringLiteral("%1 tem %2 linha(s) e %3 coluna(s)").arg(a[0]).arg(v->model()->rowCount()).arg(v->model()->columnCount()));
        const QModelIndex indice = v->model()->index(r, col);
        if (!(v->model()->flags(indice) & Qt::ItemIsEditable))
            erro(QStringLiteral("a célula %1,%2 de %3 não se edita").arg(a[1], a[2], a[0]));
        daFoco(v);
        v->scrollTo(indice);
        v->setCurrentIndex(indice);
        v->edit(indice);
        processa(false);
        QWidget *editor = QApplication::focusWidget();
        if (!editor || editor == v || !v->isAncestorOf(editor))
            erro(QStringLiteral("a célula %1,%2 de %3 não abriu para edição").arg(a[1], a[2], a[0]));
        selecionaTudo(editor);
        digita(editor, a[3]);
        QTest::keyClick(editor, Qt::Key_Return);
    } else if (n == QLatin1String("show")) {
        QWidget *w = controle(a[0], false);
        escreve(QStringLiteral("VALUE %1|%2|%3|%4")
                    .arg(a[0], umaLinha(valorDe(w)), w->isEnabled() ? QStringLiteral("1") : QStringLiteral("0"),
                         w->isVisible() ? QStringLiteral("1") : QStringLiteral("0")));
    } else if (n == QLatin1String("grid")) {
        QAbstractItemView *v = vista(a[0], false);
        const QList<int> colunas = colunasVisiveis(v);
        for (int r = 0; r < v->model()->rowCount(); ++r) {
            QString linha = QStringLiteral("ROW %1").arg(r + 1);
            for (int col : colunas)
                linha += u'|' + umaLinha(v->model()->index(r, col).data().toString());
            escreve(linha);
        }
    } else if (n == QLatin1String("close")) {
        QWidget *form = formAtual();
        confereModal(form);
        traz(form);
        if (auto *sub = subDe(form))
            sub->close();
        else
            form->close();
    } else if (n == QLatin1String("wait")) {
        QElapsedTimer relogio;
        relogio.start();
        while (relogio.elapsed() < 50)
            processa(modais_.empty());
    }
}
