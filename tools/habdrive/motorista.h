#pragma once
// The driver of habdrive: runs a script's commands on the program's windows
// and prints what happens, one line an event (docs/habdrive.md).
#include "roteiro.h"

#include <QDialog>
#include <QPointer>
#include <deque>
#include <functional>
#include <memory>
#include <vector>

class QAbstractItemView;
class QMdiSubWindow;
class mdiHabitarium;
struct ReportDocument;

// One event a line: a line break inside a text is written as \n.
QString umaLinha(QString texto);

class Motorista {
public:
    enum Saida { kTudoCerto = 0, kOutraFalha = 1, kComandoFalhou = 2, kSemResposta = 3, kProgramaTerminou = 4 };

    Motorista(QList<Comando> comandos, QString pdfDir);

    mdiHabitarium *mdi = nullptr;
    // Where the lines go (standard output when empty), and what ends the run
    // with its status (the end of the process when empty, or when it returns).
    std::function<void(const QString &)> saida;
    std::function<void(int)> fim;

    // Prints one event line, after the OPEN and CLOSE lines due before it.
    void escreve(const QString &linha);
    // Runs commands until the dialog closes (or, with none, until the script ends).
    void executa(QPointer<QDialog> modal, bool dentroDeDialogo);
    void abreDialogo(QDialog &d);
    int msgBox(const QString &texto, int estilo, const QString &titulo);
    QString inputBox(const QString &texto, const QString &titulo, const QString &padraoTexto);
    QString escolheArquivo();
    // A finished report: written as a PDF with --pdf; else shown in the
    // preview (preview) or dropped (a direct print never reaches a printer here).
    void relatorio(const std::shared_ptr<const ReportDocument> &doc, bool preview);
    [[noreturn]] void termina();
    [[noreturn]] void erro(const QString &motivo, int linha = 0);
    [[noreturn]] void sai(int codigo);

private:
    void bruto(const QString &linha);
    static QString linhaDaCaixa(const QString &titulo, const QString &texto, const QStringList &legendas);
    // OPEN and CLOSE of the main window's children, in the order they happen
    // between two events.
    void sincroniza();
    QMdiSubWindow *subDe(QWidget *form) const;
    bool aberto(QWidget *form) const;
    QWidget *formAtual();
    // A person cannot reach a window under a modal dialog.
    void confereModal(QWidget *form);
    // The form's control; to act on it, it must be visible and enabled.
    QWidget *controle(const QString &nome, bool agir);
    // Brings the form's window to the front and makes it active, as a click on it would.
    void traz(QWidget *form);
    void ativa(QWidget *w);
    void daFoco(QWidget *w);
    void digita(QWidget *w, const QString &texto);
    static void selecionaTudo(QWidget *w);
    // A press and a release; a box that opens at the press (a field's lost
    // focus) takes the click, as it does on screen.
    void clica(QWidget *w, QPoint onde);
    QAbstractItemView *vista(const QString &nome, bool agir);
    static QList<int> colunasVisiveis(QAbstractItemView *v);
    static QString valorDe(QWidget *w);
    void roda(const Comando &c);

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
    struct Pendente {
        QString texto;
        int linha;
    };
    std::deque<Pendente> respostas_;
    std::deque<Pendente> arquivos_;
    std::vector<Filho> filhos_;
    bool semResposta_ = false;
    bool falhaPdf_ = false;
    int relatorios_ = 0;
    int caixas_ = 0;
};
