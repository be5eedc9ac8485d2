#pragma once

/// Has the engine of QML interpret a function until it has run 200 times, and translate it to machine code only then; by
/// itself it does so after three, which at a start costs more than it saves. Before the first engine. A threshold that
/// the user has set through Qt's own variable stands.
void interpretAtFirst();
