#pragma once

/// Makes the QML engine interpret a function for its first 200 calls and compile it to machine code only then. The
/// default of three calls costs more time at the start than it saves. Must be called before the first engine is
/// created. A threshold that the user has set through Qt's environment variable is kept.
void interpretAtFirst();
