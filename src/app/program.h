// The program's entry point behind the toolkit's application object.
#pragma once

// Hands over to a running copy, or loads and runs until the end. The exit code.
int Main();
