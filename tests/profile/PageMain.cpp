// Prints the table of keys for script/profile-page.
#include <cstdio>

#include "tests/profile/ProfilePage.h"

int main() { return std::fputs(veerwatch::ProfilePageTable().c_str(), stdout) < 0 ? 1 : 0; }
