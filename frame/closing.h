// The end of a run: the query before closing and the unload of the frame.
#pragma once

void Closing_Wire();
