// How the program looks on every desktop: its own style, colours and face, in its windows as in the
// menus, boxes and drop-downs of the toolkit.
#pragma once

// Once, after the toolkit has started; and before the first window.
void Set_ProgramLook();
