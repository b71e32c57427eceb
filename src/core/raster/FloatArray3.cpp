#include "core/raster/FloatArray3.h"

#include <cstddef>
#include <new>

namespace tavrin {

float*** memAllocFloat3(int rows, int columns, int depth) {
    if (rows < 1 || columns < 1 || depth < 1) return nullptr;
    const auto cells = static_cast<std::size_t>(rows) * static_cast<std::size_t>(columns);
    const auto stride = static_cast<std::size_t>(depth);
    if (cells > (static_cast<std::size_t>(-1) / sizeof(float) - 10) / stride) return nullptr;

    float* values = new (std::nothrow) float[cells * stride + 10];
    float** columnsTable = new (std::nothrow) float*[cells];
    float*** rowsTable = new (std::nothrow) float**[static_cast<std::size_t>(rows)];
    if (!values || !columnsTable || !rowsTable) {
        delete[] values;
        delete[] columnsTable;
        delete[] rowsTable;
        return nullptr;
    }
    for (std::size_t cell = 0; cell < cells; ++cell)
        columnsTable[cell] = values + cell * stride;
    for (int row = 0; row < rows; ++row) {
        rowsTable[row] = columnsTable + static_cast<std::size_t>(row) * static_cast<std::size_t>(columns);
    }
    return rowsTable;
}

void memFreeFloat3(float*** array) {
    if (!array) return;
    delete[] array[0][0];
    delete[] array[0];
    delete[] array;
}

}  // namespace tavrin
