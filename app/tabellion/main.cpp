#include "programma/Registro.h"
#include "session/Avvio.h"

int main(int argc, char* argv[]) {
    RegistraFinestreProgramma();
    return AvviaTabellion(argc, argv);
}
