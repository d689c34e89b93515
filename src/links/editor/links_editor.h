// The way to the links editor for the rest of the house.
#pragma once

// Opens the window, or brings it to the front.
void Show_LinksEditor();
// At the end of the program: what stands in the open panel goes to its row; nothing asks.
void Store_OpenLinksPanel();
