#pragma once

// The program's windows and dialogs, registered by name in one place above the subsystems: the
// main child windows and the dialogs of the menus in the main form's registry (PrimoMDI), the
// dialogs that records and windows open in the registry of dialogs (Dialoghi). Each is
// registered unless its name is taken already, so that a test's stand-in registered before
// stays. Called before the main form opens by every program and test that opens real windows.
void RegistraFinestreProgramma();
