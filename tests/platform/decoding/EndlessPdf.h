#pragma once

#include <QByteArray>

/// A PDF of one page that takes days to draw: it is filled with a pattern that is repeated 10 million times each way.
inline QByteArray endlessPdf()
{
    return "%PDF-1.4\n1 0 obj<</Type/Catalog/Pages 2 0 R>>endobj\n"
           "2 0 obj<</Type/Pages/Count 1/Kids[3 0 R]>>endobj\n"
           "3 0 obj<</Type/Page/Parent 2 0 R/MediaBox[0 0 200 200]/Contents 4 0 R"
           "/Resources<</Pattern<</P 5 0 R>>>>>>endobj\n"
           "4 0 obj<</Length 40>>stream\n/Pattern cs /P scn 0 0 200 200 re f     \nendstream "
           "endobj\n"
           "5 0 obj<</Type/Pattern/PatternType 1/PaintType 1/TilingType 1/BBox[0 0 1 1]"
           "/XStep 0.00002/YStep 0.00002/Resources<<>>/Length 26>>stream\n"
           "1 0 0 rg 0 0 1 1 re f     \nendstream endobj\n"
           "trailer<</Root 1 0 R>>\n%%EOF\n";
}
