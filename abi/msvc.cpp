// Compiled for Microsoft's ABI and never run: uses every export, and destroys an object through
// every interface, which makes the compiler lay out the interface's table of virtual functions.
#include <tolva/tolva.h>

template <class Interface>
void Use(Interface* (*factory)()) {
  delete factory();
}

// The interfaces without a factory.
void UseInner(TolvaInterface::IILPInLineProxy* proxy,
              CpsAnalysisDetailsConf::IcustomDisplayText* text) {
  delete proxy;
  delete text;
}

void UseEverything() {
  tolvaDestroyXMLManager(nullptr);
  delete tolvaCreateXMLManager(0);
  SetTolvaDebugDumpCallBack(nullptr);
  tolvaReadToEnd(nullptr);
  tolvaSetLastError(tolvaGetLastError());
#define TOLVA_FACTORY(space, name, node, type) Use<space::type>(&space::name##_CreateNewInstance);
#include "../src/exports/factories.def"
#undef TOLVA_FACTORY
}
