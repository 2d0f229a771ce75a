// habdrive PROGRAM_DIR SCRIPT [--pdf DIR] [--sql]: runs a script of a clerk's
// actions on the real program, offscreen, and prints what happened, one line
// an event (docs/habdrive.md). The program starts as it always does; the
// script's commands run wherever the program waits for a person: in each
// modal dialog while it is open (through the modal handler), and in the main
// window once the start is over.
#include "roteiro.h"

#include "app/programa.h"
#include "core/datastore.h"
#include "core/forms/mdiHabitarium.h"
#include "core/prompter.h"
#include "core/widgets/escolhaarquivo.h"
#include "core/widgets/modal.h"
#include "reporting/forms/frmRelatorio.h"
#include "reporting/imprime.h"

#include <QAbstractButton>
#include <QAbstractItemView>
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
#include <vector>

namespace {

enum Saida { kTudoCerto = 0, kOutraFalha = 1, kComandoFalhou = 2, kSemResposta = 3, kProgramaTerminou = 4 };

[[noreturn]] void sai(int codigo)
{
    std::fflush(stdout);
    std::fflush(stderr);
    std::_Exit(codigo);  // the program's windows and files need no tidying
}

// One event a line: a line break inside a text is written as \n.
QString umaLinha(QString texto)
{
    texto.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    texto.replace(u'\r', u'\n');
    return texto.replace(QStringLiteral("\n"), QStringLiteral("\\n"));
}

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

struct Pendente {
    QString texto;
    int linha;
};

class Motorista {
public:
    Motorista(QList<Comando> comandos, QString pdfDir) : comandos_(std::move(comandos)), pdfDir_(std::move(pdfDir)) {}

    mdiHabitarium *mdi = nullptr;

    // Output.
    void escreve(const QString &linha)
    {
        sincroniza();
        bruto(linha);
    }

    // Runs commands until the dialog closes (or, with none, until the script ends).
    void executa(QPointer<QDialog> modal, bool dentroDeDialogo)
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

    void abreDialogo(QDialog &d)
    {
        if (fimProgramaPedido())
            sai(kProgramaTerminou);
        QPointer<QDialog> dialogo(&d);
        const QString nome = nomeDe(d);
        escreve(QStringLiteral("OPEN ") + nome);
        modais_.push_back(dialogo);
        d.show();
        ativa(&d);
        processa(false);
        executa(dialogo, true);
        modais_.pop_back();
        escreve(QStringLiteral("CLOSE ") + nome);
    }

    int msgBox(const QString &texto, int estilo, const QString &titulo)
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

    QString inputBox(const QString &texto, const QString &titulo, const QString &padraoTexto)
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

    QString escolheArquivo()
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

    // A finished report: written as a PDF with --pdf; else shown in the
    // preview (preview) or dropped (a direct print never reaches a printer here).
    void relatorio(const std::shared_ptr<const ReportDocument> &doc, bool preview)
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

    [[noreturn]] void termina()
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

    [[noreturn]] void erro(const QString &motivo, int linha = 0)
    {
        sincroniza();
        bruto(QStringLiteral("ERROR line %1: %2").arg(linha ? linha : linha_).arg(motivo));
        sai(kComandoFalhou);
    }

private:
    static void bruto(const QString &linha)
    {
        const QByteArray bytes = linha.toUtf8();
        std::fwrite(bytes.constData(), 1, size_t(bytes.size()), stdout);
        std::fputc('\n', stdout);
        std::fflush(stdout);
    }

    static QString linhaDaCaixa(const QString &titulo, const QString &texto, const QStringList &legendas)
    {
        return umaLinha(titulo.isEmpty() ? QStringLiteral("Habitarium") : titulo) + u'|' + umaLinha(texto) + u'|'
            + legendas.join(u'/');
    }

    // OPEN and CLOSE of the main window's children, in the order they happen
    // between two events.
    void sincroniza()
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

    QMdiSubWindow *subDe(QWidget *form) const
    {
        return form ? qobject_cast<QMdiSubWindow *>(form->parentWidget()) : nullptr;
    }

    bool aberto(QWidget *form) const
    {
        if (!form)
            return false;
        if (auto *sub = subDe(form))
            return !sub->isHidden() && mdi->area()->subWindowList().contains(sub);
        return form->isVisible();
    }

    QWidget *formAtual()
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

    // A person cannot reach a window under a modal dialog.
    void confereModal(QWidget *form)
    {
        if (!modais_.empty() && modais_.back() && modais_.back() != form)
            erro(QStringLiteral("%1 está aberto por cima de %2").arg(nomeDe(*modais_.back()), form ? nomeDe(*form) : QStringLiteral("mdiHabitarium")));
    }

    // The form's control; to act on it, it must be visible and enabled.
    QWidget *controle(const QString &nome, bool agir)
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

    // Brings the form's window to the front and makes it active, as a click on it would.
    void traz(QWidget *form)
    {
        if (auto *sub = subDe(form))
            if (mdi->area()->currentSubWindow() != sub)
                mdi->area()->setActiveSubWindow(sub);
        ativa(form);
    }

    void ativa(QWidget *w)
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

    void daFoco(QWidget *w)
    {
        if (w->hasFocus())
            return;
        w->setFocus(Qt::MouseFocusReason);
        processa(false);  // the field selects its text after the focus arrives
    }

    void digita(QWidget *w, const QString &texto)
    {
        for (const QChar c : texto) {
            const Qt::Key tecla = c == u' ' ? Qt::Key_Space : c.unicode() < 0x100 ? Qt::Key(c.toUpper().unicode()) : Qt::Key_unknown;
            QWidget *foco = QApplication::focusWidget() ? QApplication::focusWidget() : w;
            QTest::sendKeyEvent(QTest::Click, foco, tecla, QString(c), Qt::NoModifier);
        }
    }

    static void selecionaTudo(QWidget *w)
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

    // A press and a release; a box that opens at the press (a field's lost
    // focus) takes the click, as it does on screen.
    void clica(QWidget *w, QPoint onde)
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

    QAbstractItemView *vista(const QString &nome, bool agir)
    {
        auto *v = qobject_cast<QAbstractItemView *>(controle(nome, agir));
        if (!v || !v->model())
            erro(QStringLiteral("%1 não é uma grade nem uma lista").arg(nome));
        return v;
    }

    static QList<int> colunasVisiveis(QAbstractItemView *v)
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

    static QString valorDe(QWidget *w)
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
        return w->windowTitle();
    }

    void roda(const Comando &c)
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

    struct Filho {
        QPointer<QMdiSubWindow> sub;
        QString nome;
    };

    QList<Comando> comandos_;
    QString pdfDir_;
    qsizetype proximo_ = 0;
    int linha_ = 0;
    std::vector<QPointer<QDialog>> modais_;
    QPointer<QWidget> alvo_;
    std::deque<Pendente> respostas_;
    std::deque<Pendente> arquivos_;
    std::vector<Filho> filhos_;
    bool semResposta_ = false;
    bool falhaPdf_ = false;
    int relatorios_ = 0;
    int caixas_ = 0;
};

class PrompterDoRoteiro : public Prompter {
public:
    explicit PrompterDoRoteiro(Motorista &m) : m_(m) {}
    int msgBox(const QString &text, int style, const QString &title) override { return m_.msgBox(text, style, title); }
    QString inputBox(const QString &prompt, const QString &title, const QString &defaultText) override
    {
        return m_.inputBox(prompt, title, defaultText);
    }

private:
    Motorista &m_;
};

// The offscreen platform's notes on what it cannot do (raise a window...) say
// nothing about the program; every other message goes to standard error.
void filtraMensagens(QtMsgType tipo, const QMessageLogContext &contexto, const QString &texto)
{
    if (texto.startsWith(QLatin1String("This plugin does not support")))
        return;
    std::fprintf(stderr, "%s\n", qFormatLogMessage(tipo, contexto, texto).toUtf8().constData());
}

[[noreturn]] void uso()
{
    std::fprintf(stderr, "uso: habdrive PROGRAM_DIR SCRIPT [--pdf DIR] [--sql]\n");
    sai(kOutraFalha);
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler(filtraMensagens);
    Aplicacao app(argc, argv);
    preparaPrograma(app);

    QStringList posicionais;
    QString pdfDir;
    bool sql = false;
    const QStringList args = app.arguments();
    for (qsizetype i = 1; i < args.size(); ++i) {
        if (args[i] == QLatin1String("--sql"))
            sql = true;
        else if (args[i] == QLatin1String("--pdf") && i + 1 < args.size())
            pdfDir = args[++i];
        else if (args[i].startsWith(QLatin1String("--")))
            uso();
        else
            posicionais << args[i];
    }
    if (posicionais.size() != 2)
        uso();

    QFile arquivo;
    const bool daEntrada = posicionais[1] == QLatin1String("-");
    const bool aberto = daEntrada ? arquivo.open(stdin, QIODevice::ReadOnly) : (arquivo.setFileName(posicionais[1]), arquivo.open(QIODevice::ReadOnly));
    if (!aberto) {
        std::fprintf(stderr, "habdrive: não foi possível ler %s\n", posicionais[1].toUtf8().constData());
        sai(kOutraFalha);
    }
    QList<Comando> comandos;
    int linhaErro = 0;
    QString motivo;
    if (!leRoteiro(QString::fromUtf8(arquivo.readAll()), comandos, linhaErro, motivo)) {
        std::printf("ERROR line %d: %s\n", linhaErro, motivo.toUtf8().constData());
        sai(kOutraFalha);
    }
    if (!pdfDir.isEmpty() && !QDir().mkpath(pdfDir)) {
        std::fprintf(stderr, "habdrive: não foi possível criar %s\n", pdfDir.toUtf8().constData());
        sai(kOutraFalha);
    }

    Motorista motorista(std::move(comandos), pdfDir);
    PrompterDoRoteiro prompter(motorista);
    setPrompter(&prompter);
    setModalHandler([&](QDialog &d) { motorista.abreDialogo(d); });
    setEscolhaHandler([&](EscolhaArquivo, const QString &, const QString &) { return motorista.escolheArquivo(); });
    setReportPrinter([&](std::shared_ptr<const ReportDocument> doc) {
        motorista.relatorio(doc, false);
        return true;
    });
    if (sql)
        setStatementListener([&](const QString &s) { motorista.escreve(QStringLiteral("SQL ") + umaLinha(s)); });

    mdiHabitarium mdi;
    motorista.mdi = &mdi;
    const bool iniciou = iniciaPrograma(mdi, QDir(posicionais[0]).absolutePath(),
                                        [&](std::shared_ptr<const ReportDocument> doc) { motorista.relatorio(doc, true); });
    if (!iniciou)
        sai(kProgramaTerminou);
    mdi.showMaximized();
    mdi.activateWindow();
    processa(true);
    motorista.executa(nullptr, false);
    return kOutraFalha;  // executa ends the run itself
}
