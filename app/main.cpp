// Orvanta: starts the program with the Qt front end.

#include "app/launch.h"

int main(int argc, char** argv) {
  orv::app::Launch orvanta(argc, argv);
  return orvanta.Run();
}
