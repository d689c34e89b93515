// Whether what is drawn covers its background.
#pragma once

enum class BackStyle { Transparent = 0, Opaque = 1 };
