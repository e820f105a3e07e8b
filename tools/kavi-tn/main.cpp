// kavi-tn: text in, speakable sentences out.

#include "run_tool.h"

int main(int argc, char** argv) {
    return kavi::tool::run_tool(argc, argv);
}
