#include <QGuiApplication>

#include "tool/render_command.h"

int main(int argc, char** argv) {
  // Pictures are made without a screen unless one is asked for.
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QGuiApplication application(argc, argv);
  return zepril::RenderCommand({argv + 1, argv + argc});
}
