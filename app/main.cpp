// The program: a Qt application in Brazilian Portuguese whose first object is
// the main window. A routine that ends the program, and a failure of the
// database, reach the top level (app/programa.h).
#include "app/programa.h"
#include "core/forms/mdiHabitarium.h"
#include "core/widgets/messageboxprompter.h"

int main(int argc, char **argv)
{
    Aplicacao app(argc, argv);
    preparaPrograma(app);
    MessageBoxPrompter prompter;
    setPrompter(&prompter);

    mdiHabitarium mdi;
    if (!iniciaPrograma(mdi, QCoreApplication::applicationDirPath()))
        return 0;
    mdi.showMaximized();
    const int code = app.exec();
    setPrompter(nullptr);
    return code;
}
