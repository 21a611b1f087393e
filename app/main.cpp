#include "app/ProgramQt.h"

int main(int argc, char* argv[]) { return veerwatch::RunProgram(argc, argv); }
