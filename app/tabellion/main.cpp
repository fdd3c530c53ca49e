#include "session/Avvio.h"

int main(int argc, char* argv[]) {
    return AvviaTabellion(argc, argv);
}
