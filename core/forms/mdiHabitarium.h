#pragma once
// The main window: start-up, login, the menu and toolbar, the title bar and
// the child forms. Every working form is a child of it or a modal dialog over it.
#include <QMainWindow>

class QAction;
class QKeyEvent;
class QMdiArea;
class QMenu;
class QToolBar;

class mdiHabitarium : public QMainWindow {
    Q_OBJECT
public:
    struct ItemMenu;  // one row of the menu table

    explicit mdiHabitarium(QWidget *parent = nullptr);

    // The start of the program in the directory given: the database files,
    // the installation settings, the login and the active condominium.
    // ProgramEnded when the program must end.
    void Carrega(const QString &programDir);
    void EntrarSistema();

    // A menu entry, a menu (its action) or a toolbar button ("tob01".."tob14") by name.
    QAction *acao(const QString &name) const;
    QMdiArea *area() const { return area_; }

    // Opens a form of the catalog: a child comes to the front when it is open
    // already; a dialog is shown modally. The child, or nullptr.
    QWidget *abreForm(const QString &formName);

    void mnuSair_Click();
    void mnuMusu_Click();
    void mnuAtemp_Click();

    // The enabled state of menu and toolbar after each kind of login.
    void aplicaAdministrador();
    void aplicaUsuario();

protected:
    void closeEvent(QCloseEvent *event) override;
    // While a form is active its own access keys win over the menu bar's.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void montaMenu();
    void montaBarra();
    void executa(const ItemMenu &item);
    void montaJanelas();
    QWidget *alvoDaTecla(const QKeyEvent &key) const;

    QMdiArea *area_;
    QMenu *mnuJanelas_ = nullptr;
    QToolBar *tobPrincipal_ = nullptr;
};
