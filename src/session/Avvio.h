#pragma once

// Starts the program: the application object, the Italian rules for numbers and dates, the
// main form. Returns the process's exit code.
int AvviaTabellion(int argc, char* argv[]);

// The Italian rules for numbers and dates, whatever the machine's locale.
void ImpostaRegoleItaliane();
