/** @file
 * vqk_file_mxd: reads ArcMap map documents (.mxd) without ArcMap.
 *
 * @par Handles
 * A handle is an opaque pointer into the object tree of a document. vq_mxd_mxd_create() makes a
 * document and vq_mxd_mxd_destroy() frees it. All other handles belong to their document; the
 * caller never frees them.
 *
 * @par Lifetime
 * Handles and texts stay valid until their document is loaded again or destroyed.
 *
 * @par Objects
 * Maps, layers, symbols, colors, renderers, feature class names, workspace names, coordinate
 * systems, line templates, legend groups and legend classes are objects: VQ_MXD_OBJ(handle)
 * converts their handles to vq_mxd_obj, which the vq_mxd_obj_get_ functions take. Lists, fonts,
 * ranges, unique values and line template items are not objects. A cast function returns the handle
 * of the concrete class, or null if the object is of another class.
 *
 * @par Null
 * A getter that returns an object returns null if none was found: the document contains none, or
 * one of a class that this library does not know. Lists, records (fonts and ranges) and embedded
 * objects (workspace names, line templates, and the legend groups of renderers) are never null. As
 * arguments, only vq_mxd_mxd_destroy() and the casts accept null.
 *
 * @par Texts
 * Texts are NUL-terminated and owned by their object. They are UTF-16 (vq_mxd_char: wchar_t on
 * Windows, char16_t elsewhere), or 8-bit where the type is char. A text that was not read is empty.
 * Paths are UTF-16 on all platforms; outside Windows they are converted to UTF-8.
 *
 * @par Numbers
 * A number that was not read is 0. Numbers are returned exactly as stored unless the function says
 * otherwise.
 *
 * @par Errors
 * Loading succeeds if the file is a map document, even if parts of it cannot be decoded. While
 * loading, each object that cannot be read is reported as one line on standard output: "ERROR IN",
 * its number, its class and the offset of its first byte in the stream. No function throws.
 *
 * @par Threads
 * There is no locking. A document and its tree may be used by one thread at a time, even for
 * reading. Different documents are independent.
 */
#ifndef VQK_FILE_MXD_H
#define VQK_FILE_MXD_H

#include <stdint.h>

/** @name Version of this header */ /** @{ */

/** Raised when hosts must be recompiled or changed. */
#define VQK_FILE_MXD_VERSION_MAJOR 1
/** Raised when functions are added. */
#define VQK_FILE_MXD_VERSION_MINOR 0
/** Raised for bug fixes that leave the interface unchanged. */
#define VQK_FILE_MXD_VERSION_PATCH 0
/** The version as one number for comparisons: 10203 is version 1.2.3. */
#define VQK_FILE_MXD_VERSION                                               \
  (VQK_FILE_MXD_VERSION_MAJOR * 10000 + VQK_FILE_MXD_VERSION_MINOR * 100 + \
   VQK_FILE_MXD_VERSION_PATCH)
/** @} */

/** Marks exported functions. On Windows, define VQK_FILE_MXD_STATIC to link the static library. */
#if defined(_WIN32) && !defined(VQK_FILE_MXD_STATIC)
#define VQ_MXD_API __declspec(dllimport)
#elif defined(__GNUC__) && !defined(_WIN32)
#define VQ_MXD_API __attribute__((visibility("default")))
#else
#define VQ_MXD_API
#endif

/** A UTF-16 code unit. In C, char16_t is the same type as uint_least16_t. */
#if defined(_WIN32)
#include <wchar.h>
typedef wchar_t vq_mxd_char;
#elif defined(__cplusplus)
typedef char16_t vq_mxd_char;
#else
typedef uint_least16_t vq_mxd_char;
#endif

#ifdef __cplusplus
extern "C" {
#endif

/** @name Handles */ /** @{ */

/** A document. */
typedef struct vq_mxd_mxd vq_mxd_mxd;
/** The maps of a document. */
typedef struct vq_mxd_maps vq_mxd_maps;
/** An object of any class. */
typedef struct vq_mxd_obj vq_mxd_obj;
/** A map. */
typedef struct vq_mxd_map vq_mxd_map;
/** A coordinate system. */
typedef struct vq_mxd_coordinate_system vq_mxd_coordinate_system;

/** The layers of a map. */
typedef struct vq_mxd_layers vq_mxd_layers;
/** A layer of any class. */
typedef struct vq_mxd_layer vq_mxd_layer;
/** A layer that groups other layers. */
typedef struct vq_mxd_group_layer vq_mxd_group_layer;
/** A layer that shows the points, lines or polygons of a feature class. */
typedef struct vq_mxd_feature_layer vq_mxd_feature_layer;

/** A name object that refers to a feature class, the data of a layer. */
typedef struct vq_mxd_basic_feature_class_name vq_mxd_basic_feature_class_name;
/** A name object that refers to a workspace, the folder or database with the data. */
typedef struct vq_mxd_workspace_name vq_mxd_workspace_name;

/** A renderer of any class: how the features of a layer are drawn. */
typedef struct vq_mxd_renderer vq_mxd_renderer;
/** A renderer that draws all features with one symbol. */
typedef struct vq_mxd_simple_renderer vq_mxd_simple_renderer;
/** A renderer with one symbol per value of one to three fields. */
typedef struct vq_mxd_unique_value_renderer vq_mxd_unique_value_renderer;
/** A renderer with one symbol per range of values of a field. */
typedef struct vq_mxd_class_breaks_renderer vq_mxd_class_breaks_renderer;

/** A part of a legend: a heading and legend classes. */
typedef struct vq_mxd_legend_group vq_mxd_legend_group;
/** An entry of a legend: a symbol and its label. */
typedef struct vq_mxd_legend_class vq_mxd_legend_class;
/** The values of a unique value renderer. */
typedef struct vq_mxd_unique_values vq_mxd_unique_values;
/** A value of a unique value renderer. */
typedef struct vq_mxd_unique_value vq_mxd_unique_value;
/** The ranges of a class breaks renderer. */
typedef struct vq_mxd_ranges vq_mxd_ranges;

/** A symbol of any class. */
typedef struct vq_mxd_symbol vq_mxd_symbol;
/** A marker drawn as a character of a font. */
typedef struct vq_mxd_char_marker_symbol vq_mxd_char_marker_symbol;
/** A marker drawn as a circle, square, cross, X or diamond. */
typedef struct vq_mxd_simple_marker_symbol vq_mxd_simple_marker_symbol;
/** Markers drawn on top of each other. */
typedef struct vq_mxd_multilayer_marker_symbol vq_mxd_multilayer_marker_symbol;
/** A line, solid or in a simple dash pattern. */
typedef struct vq_mxd_simple_line_symbol vq_mxd_simple_line_symbol;
/** A line with a dash pattern and decorations. */
typedef struct vq_mxd_cartographic_line_symbol vq_mxd_cartographic_line_symbol;
/** A line drawn as short strokes across its direction. */
typedef struct vq_mxd_hash_line_symbol vq_mxd_hash_line_symbol;
/** A line drawn as a row of markers. */
typedef struct vq_mxd_marker_line_symbol vq_mxd_marker_line_symbol;
/** Lines drawn on top of each other. */
typedef struct vq_mxd_multilayer_line_symbol vq_mxd_multilayer_line_symbol;
/** An area filled with one color. */
typedef struct vq_mxd_simple_fill_symbol vq_mxd_simple_fill_symbol;
/** An area filled with hatching. */
typedef struct vq_mxd_line_fill_symbol vq_mxd_line_fill_symbol;
/** An area filled with markers. */
typedef struct vq_mxd_marker_fill_symbol vq_mxd_marker_fill_symbol;
/** Fills drawn on top of each other. */
typedef struct vq_mxd_multilayer_fill_symbol vq_mxd_multilayer_fill_symbol;

/** A color. */
typedef struct vq_mxd_color vq_mxd_color;
/** The font of a character marker. */
typedef struct vq_mxd_font vq_mxd_font;
/** The dash pattern of a line. */
typedef struct vq_mxd_line_template vq_mxd_line_template;
/** A dash and the gap after it. */
typedef struct vq_mxd_line_template_item vq_mxd_line_template_item;
/** The layers of a multilayer marker. */
typedef struct vq_mxd_marker_symbols vq_mxd_marker_symbols;
/** The layers of a multilayer line. */
typedef struct vq_mxd_line_symbols vq_mxd_line_symbols;
/** The layers of a multilayer fill. */
typedef struct vq_mxd_fill_symbols vq_mxd_fill_symbols;

/** Converts the handle of an object to the generic handle. In C++ the compiler rejects handles that
   are not objects; in C it accepts any pointer. */
#ifdef __cplusplus
#define VQ_MXD_OBJ(handle) vq_mxd_obj_of(handle)
#else
#define VQ_MXD_OBJ(handle) ((const vq_mxd_obj*)(handle))
#endif
/** @} */

/** @name Document */ /** @{ */

/** Returns a new, empty document, or null if memory runs out. The caller destroys it. */
VQ_MXD_API vq_mxd_mxd* vq_mxd_mxd_create(void);

/** Frees the document and everything below it. Null is ignored. */
VQ_MXD_API void vq_mxd_mxd_destroy(vq_mxd_mxd* document);

/** Discards the current content, then loads the file. Returns 1 if the file is a map document, even
   one without maps. Returns 0 if the file cannot be opened, is not a map document or is too damaged
   to find its maps, or if memory runs out; the document is then empty and can be loaded again. */
VQ_MXD_API int vq_mxd_mxd_load(vq_mxd_mxd* document, const vq_mxd_char* path);

/** Writes the whole tree to the file as XML, replacing an existing file. The XML is declared as
   windows-1251 and encoded in it; on Windows it is encoded in the system's ANSI code page instead.
   Characters outside the encoding are replaced. Returns 1 if the file could be opened, otherwise 0.
   Write errors after that, such as a full disk, are not reported. */
VQ_MXD_API int vq_mxd_mxd_save_xml(const vq_mxd_mxd* document, const vq_mxd_char* path);

/** Returns the maps of the document; never null, empty before the first load. */
VQ_MXD_API const vq_mxd_maps* vq_mxd_mxd_get_maps(const vq_mxd_mxd* document);

/** Returns the number of maps. */
VQ_MXD_API int64_t vq_mxd_maps_get_size(const vq_mxd_maps* maps);

/** Returns the map at the index. Unlike in the other lists, the index is not checked: it must be in
   [0, size). */
VQ_MXD_API const vq_mxd_map* vq_mxd_maps_get(const vq_mxd_maps* maps, int32_t index);
/** @} */

/** @name Any object */ /** @{ */

/** Returns 0 if this is an embedded object that the document does not contain; its getters then
   return 0 or empty. Otherwise returns 1. Inside a back-reference it is always 1, even if the
   original does not exist. */
VQ_MXD_API int vq_mxd_obj_get_exists(const vq_mxd_obj* object);

/** Returns 1 if the object is a back-reference to an object stored earlier, otherwise 0. If it is a
   symbol, color, name, coordinate system or line template, it has the content of that object. If it
   is a map, layer, renderer, legend group or legend class, it is empty; skip it. */
VQ_MXD_API int vq_mxd_obj_get_repeat(const vq_mxd_obj* object);

/** Returns the object's number in the document. Objects with the same number other than 0 are the
   same stored object. Objects inside a back-reference, and objects that were not read, have
   number 0. */
VQ_MXD_API unsigned int vq_mxd_obj_get_number(const vq_mxd_obj* object);

/** Returns the name of the object's class, such as "mxd_simple_line_symbol". ASCII. */
VQ_MXD_API const char* vq_mxd_obj_get_type_str(const vq_mxd_obj* object);
/** @} */

/** @name Map */ /** @{ */

/** Returns the map's name. */
VQ_MXD_API const vq_mxd_char* vq_mxd_map_get_name(const vq_mxd_map* map);

/** Returns the layers of the map as one flat list: the members of a group follow the group. Never
   null. */
VQ_MXD_API const vq_mxd_layers* vq_mxd_map_get_layers(const vq_mxd_map* map);

/** Returns the coordinate system of the map (data frame), or null. */
VQ_MXD_API const vq_mxd_coordinate_system* vq_mxd_map_get_coordinate_system(const vq_mxd_map* map);
/** @} */

/** @name Coordinate system */ /** @{ */

/** Returns the coordinate system as Esri well-known text (WKT 1), in the code page of the program
   that wrote the document; empty for an unknown coordinate system. */
VQ_MXD_API const char* vq_mxd_coordinate_system_get_wkt(const vq_mxd_coordinate_system* system);
/** @} */

/** @name Layers */ /** @{ */

/** Returns the number of layers. */
VQ_MXD_API int64_t vq_mxd_layers_get_size(const vq_mxd_layers* layers);

/** Returns the layer at the index, or null if the index is out of range. */
VQ_MXD_API const vq_mxd_layer* vq_mxd_layers_get(const vq_mxd_layers* layers, int32_t index);
/** @} */

/** @name Any layer */ /** @{ */

/** Returns the layer as a group layer, or null. */
VQ_MXD_API const vq_mxd_group_layer* vq_mxd_layer_cast_group_layer(const vq_mxd_layer* layer);

/** Returns the layer as a feature layer, or null. */
VQ_MXD_API const vq_mxd_feature_layer* vq_mxd_layer_cast_feature_layer(const vq_mxd_layer* layer);

/** Returns the layer's name; empty for graphics layers. */
VQ_MXD_API const vq_mxd_char* vq_mxd_layer_get_layer_name(const vq_mxd_layer* layer);

/** Returns the name of the layer type, such as "Feature Layer"; empty except for feature layers. */
VQ_MXD_API const vq_mxd_char* vq_mxd_layer_get_layer_type_name(const vq_mxd_layer* layer);

/** Returns non-zero if the layer is switched on. Known for group and feature layers only; 0 for all
   other layers, even if they are switched on. */
VQ_MXD_API uint16_t vq_mxd_layer_get_visible(const vq_mxd_layer* layer);

/** Returns the denominator of the smallest scale at which the layer is drawn, such as 500000 for
   1:500000; 0 if there is no limit. Known for feature layers only, otherwise 0. */
VQ_MXD_API double vq_mxd_layer_get_min_scale(const vq_mxd_layer* layer);

/** Returns the denominator of the largest scale at which the layer is drawn, such as 10000 for
   1:10000; 0 if there is no limit. Known for feature layers only, otherwise 0. */
VQ_MXD_API double vq_mxd_layer_get_max_scale(const vq_mxd_layer* layer);
/** @} */

/** @name Group layer */ /** @{ */

/** Returns the number of direct members of the group, which follow it in the map's list, as stored.
   A nested group counts as one; its own members follow it and are not counted. */
VQ_MXD_API uint32_t vq_mxd_group_layer_get_layer_count(const vq_mxd_group_layer* layer);
/** @} */

/** @name Feature layer */ /** @{ */

/** Returns the name of the layer's feature class, or null. */
VQ_MXD_API const vq_mxd_basic_feature_class_name* vq_mxd_feature_layer_get_basic_feature_class_name(
    const vq_mxd_feature_layer* layer);

/** Returns the workspace (folder or database) of the feature class; never null. */
VQ_MXD_API const vq_mxd_workspace_name* vq_mxd_feature_layer_get_workspace_name(
    const vq_mxd_feature_layer* layer);

/** Returns the renderer, or null. */
VQ_MXD_API const vq_mxd_renderer* vq_mxd_feature_layer_get_renderer(
    const vq_mxd_feature_layer* layer);

/** Returns the coordinate system of the data, or null. */
VQ_MXD_API const vq_mxd_coordinate_system* vq_mxd_feature_layer_get_coordinate_system(
    const vq_mxd_feature_layer* layer);
/** @} */

/** @name Feature class name */ /** @{ */

/** Returns the name of the feature class. */
VQ_MXD_API const vq_mxd_char* vq_mxd_basic_feature_class_name_get_name(
    const vq_mxd_basic_feature_class_name* name);

/** Returns the first type name of the feature class, such as "Shapefile Feature Class". */
VQ_MXD_API const vq_mxd_char* vq_mxd_basic_feature_class_name_get_type_name1(
    const vq_mxd_basic_feature_class_name* name);

/** Returns the second type name of the feature class, as stored. */
VQ_MXD_API const vq_mxd_char* vq_mxd_basic_feature_class_name_get_type_name2(
    const vq_mxd_basic_feature_class_name* name);

/** Returns the geometry type, as stored: 1 point, 2 multipoint, 3 polyline, 4 polygon,
   9 multipatch. */
VQ_MXD_API uint32_t
vq_mxd_basic_feature_class_name_get_geom_type(const vq_mxd_basic_feature_class_name* name);
/** @} */

/** @name Workspace name */ /** @{ */

/** Returns the workspace's name: a path, or the name of a database connection. */
VQ_MXD_API const vq_mxd_char* vq_mxd_workspace_name_get_name(const vq_mxd_workspace_name* name);
/** @} */

/** @name Any renderer */ /** @{ */

/** Returns the renderer as a simple renderer, or null. */
VQ_MXD_API const vq_mxd_simple_renderer* vq_mxd_renderer_cast_simple_renderer(
    const vq_mxd_renderer* renderer);

/** Returns the renderer as a unique value renderer, or null. */
VQ_MXD_API const vq_mxd_unique_value_renderer* vq_mxd_renderer_cast_unique_value_renderer(
    const vq_mxd_renderer* renderer);

/** Returns the renderer as a class breaks renderer, or null. */
VQ_MXD_API const vq_mxd_class_breaks_renderer* vq_mxd_renderer_cast_class_breaks_renderer(
    const vq_mxd_renderer* renderer);
/** @} */

/** @name Simple renderer */ /** @{ */

/** Returns the symbol of all features, or null. */
VQ_MXD_API const vq_mxd_symbol* vq_mxd_simple_renderer_get_symbol(
    const vq_mxd_simple_renderer* renderer);

/** Returns the legend; never null. */
VQ_MXD_API const vq_mxd_legend_group* vq_mxd_simple_renderer_get_legend_group(
    const vq_mxd_simple_renderer* renderer);
/** @} */

/** @name Unique value renderer */ /** @{ */

/** Returns the number of fields whose values are combined, as stored. Only the names of
   the first three are available. */
VQ_MXD_API uint32_t
vq_mxd_unique_value_renderer_get_propname_count(const vq_mxd_unique_value_renderer* renderer);

/** Returns the name of the first field. */
VQ_MXD_API const vq_mxd_char* vq_mxd_unique_value_renderer_get_propname1(
    const vq_mxd_unique_value_renderer* renderer);

/** Returns the name of the second field; empty if there is only one. */
VQ_MXD_API const vq_mxd_char* vq_mxd_unique_value_renderer_get_propname2(
    const vq_mxd_unique_value_renderer* renderer);

/** Returns the name of the third field; empty if there are fewer. */
VQ_MXD_API const vq_mxd_char* vq_mxd_unique_value_renderer_get_propname3(
    const vq_mxd_unique_value_renderer* renderer);

/** Returns the symbol of all other values, or null. */
VQ_MXD_API const vq_mxd_symbol* vq_mxd_unique_value_renderer_get_symbol(
    const vq_mxd_unique_value_renderer* renderer);

/** Returns the first of the renderer's legend groups; never null. If the renderer has two, this is
   the legend of all other values. If it has only one, this is the legend of the values. */
VQ_MXD_API const vq_mxd_legend_group* vq_mxd_unique_value_renderer_get_other_leg_grp(
    const vq_mxd_unique_value_renderer* renderer);

/** Returns the second of the renderer's legend groups, the legend of the values; never null.
   vq_mxd_obj_get_exists() returns 0 for it if the renderer has only one group. */
VQ_MXD_API const vq_mxd_legend_group* vq_mxd_unique_value_renderer_get_main_leg_grp(
    const vq_mxd_unique_value_renderer* renderer);

/** Returns the values; never null. */
VQ_MXD_API const vq_mxd_unique_values* vq_mxd_unique_value_renderer_get_unique_values(
    const vq_mxd_unique_value_renderer* renderer);
/** @} */

/** @name List of unique values */ /** @{ */

/** Returns the number of values. */
VQ_MXD_API int64_t vq_mxd_unique_values_get_size(const vq_mxd_unique_values* values);

/** Returns the value at the index, or null if the index is out of range. */
VQ_MXD_API const vq_mxd_unique_value* vq_mxd_unique_values_get(const vq_mxd_unique_values* values,
                                                               int32_t index);
/** @} */

/** @name Unique value */ /** @{ */

/** Returns the value as text; with several fields, their values in one text, as stored. */
VQ_MXD_API const vq_mxd_char* vq_mxd_unique_value_get_str(const vq_mxd_unique_value* value);

/** Returns the first of three numbers of unknown meaning, as stored. */
VQ_MXD_API uint32_t vq_mxd_unique_value_get_int1(const vq_mxd_unique_value* value);

/** Returns the second of three numbers of unknown meaning, as stored. */
VQ_MXD_API uint32_t vq_mxd_unique_value_get_int2(const vq_mxd_unique_value* value);

/** Returns the third of three numbers of unknown meaning, as stored. */
VQ_MXD_API uint32_t vq_mxd_unique_value_get_int3(const vq_mxd_unique_value* value);
/** @} */

/** @name Class breaks renderer */ /** @{ */

/** Returns the name of the classified field. */
VQ_MXD_API const vq_mxd_char* vq_mxd_class_breaks_renderer_get_propname(
    const vq_mxd_class_breaks_renderer* renderer);

/** Returns the ranges; never null. */
VQ_MXD_API const vq_mxd_ranges* vq_mxd_class_breaks_renderer_get_ranges(
    const vq_mxd_class_breaks_renderer* renderer);

/** Returns the legend, one class per range; never null. */
VQ_MXD_API const vq_mxd_legend_group* vq_mxd_class_breaks_renderer_get_main_leg_grp(
    const vq_mxd_class_breaks_renderer* renderer);
/** @} */

/** @name Ranges */ /** @{ */

/** Returns the number of ranges. */
VQ_MXD_API int32_t vq_mxd_ranges_get_size(const vq_mxd_ranges* ranges);

/** Returns the lower bound of the range at the index, or 0.0 if the index is out of range. */
VQ_MXD_API double vq_mxd_ranges_get_min_bnd(const vq_mxd_ranges* ranges, int32_t index);

/** Returns the upper bound of the range at the index, or 0.0 if the index is out of range. */
VQ_MXD_API double vq_mxd_ranges_get_max_bnd(const vq_mxd_ranges* ranges, int32_t index);
/** @} */

/** @name Legend group */ /** @{ */

/** Returns the group's heading. */
VQ_MXD_API const vq_mxd_char* vq_mxd_legend_group_get_label(const vq_mxd_legend_group* group);

/** Returns the number of legend classes. */
VQ_MXD_API int64_t vq_mxd_legend_group_get_size(const vq_mxd_legend_group* group);

/** Returns the legend class at the index, or null if the index is out of range. */
VQ_MXD_API const vq_mxd_legend_class* vq_mxd_legend_group_get(const vq_mxd_legend_group* group,
                                                              int32_t index);
/** @} */

/** @name Legend class */ /** @{ */

/** Returns the text shown beside the symbol. */
VQ_MXD_API const vq_mxd_char* vq_mxd_legend_class_get_label(
    const vq_mxd_legend_class* legend_class);

/** Returns the symbol, or null. */
VQ_MXD_API const vq_mxd_symbol* vq_mxd_legend_class_get_symbol(
    const vq_mxd_legend_class* legend_class);
/** @} */

/** @name Any symbol */ /** @{ */

/** Returns the symbol as a character marker symbol, or null. */
VQ_MXD_API const vq_mxd_char_marker_symbol* vq_mxd_symbol_cast_char_marker(
    const vq_mxd_symbol* symbol);

/** Returns the symbol as a multilayer marker symbol, or null. */
VQ_MXD_API const vq_mxd_multilayer_marker_symbol* vq_mxd_symbol_cast_multilayer_marker(
    const vq_mxd_symbol* symbol);

/** Returns the symbol as a simple marker symbol, or null. */
VQ_MXD_API const vq_mxd_simple_marker_symbol* vq_mxd_symbol_cast_simple_marker(
    const vq_mxd_symbol* symbol);

/** Returns the symbol as a cartographic line symbol, or null. */
VQ_MXD_API const vq_mxd_cartographic_line_symbol* vq_mxd_symbol_cast_cartographic_line(
    const vq_mxd_symbol* symbol);

/** Returns the symbol as a hash line symbol, or null. */
VQ_MXD_API const vq_mxd_hash_line_symbol* vq_mxd_symbol_cast_hash_line(const vq_mxd_symbol* symbol);

/** Returns the symbol as a marker line symbol, or null. */
VQ_MXD_API const vq_mxd_marker_line_symbol* vq_mxd_symbol_cast_marker_line(
    const vq_mxd_symbol* symbol);

/** Returns the symbol as a multilayer line symbol, or null. */
VQ_MXD_API const vq_mxd_multilayer_line_symbol* vq_mxd_symbol_cast_multilayer_line(
    const vq_mxd_symbol* symbol);

/** Returns the symbol as a simple line symbol, or null. */
VQ_MXD_API const vq_mxd_simple_line_symbol* vq_mxd_symbol_cast_simple_line(
    const vq_mxd_symbol* symbol);

/** Returns the symbol as a line fill symbol, or null. */
VQ_MXD_API const vq_mxd_line_fill_symbol* vq_mxd_symbol_cast_line_fill(const vq_mxd_symbol* symbol);

/** Returns the symbol as a marker fill symbol, or null. */
VQ_MXD_API const vq_mxd_marker_fill_symbol* vq_mxd_symbol_cast_marker_fill(
    const vq_mxd_symbol* symbol);

/** Returns the symbol as a multilayer fill symbol, or null. */
VQ_MXD_API const vq_mxd_multilayer_fill_symbol* vq_mxd_symbol_cast_multilayer_fill(
    const vq_mxd_symbol* symbol);

/** Returns the symbol as a simple fill symbol, or null. */
VQ_MXD_API const vq_mxd_simple_fill_symbol* vq_mxd_symbol_cast_simple_fill(
    const vq_mxd_symbol* symbol);

/** Returns 0 if this symbol is a switched-off layer of a multilayer symbol, otherwise 1. */
VQ_MXD_API uint8_t vq_mxd_symbol_get_enabled(const vq_mxd_symbol* symbol);

/** Returns 1 if this symbol is a locked layer of a multilayer symbol, otherwise 0. */
VQ_MXD_API uint8_t vq_mxd_symbol_get_locked(const vq_mxd_symbol* symbol);

/** Returns the tag of this symbol as a layer of a multilayer symbol; often empty. */
VQ_MXD_API const vq_mxd_char* vq_mxd_symbol_get_tag(const vq_mxd_symbol* symbol);
/** @} */

/** @name Color */ /** @{ */

/** Returns 1 if the color is dithered, otherwise 0. */
VQ_MXD_API int vq_mxd_color_get_dither_flag(const vq_mxd_color* color);

/** Returns 1 for "No Color", with which nothing is drawn, otherwise 0. */
VQ_MXD_API int vq_mxd_color_get_no_use_flag(const vq_mxd_color* color);

/** Converts the color to 8-bit red, green and blue, written through the pointers, which must not be
   null. Always succeeds; ignore the return value, which is 1, or the blue value of a CMYK color. */
VQ_MXD_API int vq_mxd_color_get_rgb(const vq_mxd_color* color, uint8_t* red, uint8_t* green,
                                    uint8_t* blue);
/** @} */

/** @name Font of a character marker */ /** @{ */

/** Returns the face name, in the code page of the program that wrote the document. */
VQ_MXD_API const char* vq_mxd_font_get_font_name(const vq_mxd_font* font);

/** Returns the size in points. */
VQ_MXD_API double vq_mxd_font_get_size(const vq_mxd_font* font);

/** Returns the weight: 400 is normal, 700 is bold. */
VQ_MXD_API uint16_t vq_mxd_font_get_weight(const vq_mxd_font* font);

/** Returns the Windows character set, as stored, such as 0 (ANSI), 2 (symbol), 204 (Cyrillic). */
VQ_MXD_API uint16_t vq_mxd_font_get_charset(const vq_mxd_font* font);

/** Returns 1 if the font is italic, otherwise 0. */
VQ_MXD_API int vq_mxd_font_get_italic(const vq_mxd_font* font);

/** Returns 1 if the font is underlined, otherwise 0. */
VQ_MXD_API int vq_mxd_font_get_underline(const vq_mxd_font* font);

/** Returns 1 if the font is struck out, otherwise 0. */
VQ_MXD_API int vq_mxd_font_get_strikethrough(const vq_mxd_font* font);
/** @} */

/** @name Character marker */ /** @{ */

/** Returns the character code. */
VQ_MXD_API uint32_t vq_mxd_char_marker_symbol_get_unicode(const vq_mxd_char_marker_symbol* symbol);

/** Returns the size in points. */
VQ_MXD_API double vq_mxd_char_marker_symbol_get_size(const vq_mxd_char_marker_symbol* symbol);

/** Returns the angle in degrees, counter-clockwise. */
VQ_MXD_API double vq_mxd_char_marker_symbol_get_angle(const vq_mxd_char_marker_symbol* symbol);

/** Returns the offset to the right, in points. */
VQ_MXD_API double vq_mxd_char_marker_symbol_get_x_offset(const vq_mxd_char_marker_symbol* symbol);

/** Returns the offset upwards, in points. */
VQ_MXD_API double vq_mxd_char_marker_symbol_get_y_offset(const vq_mxd_char_marker_symbol* symbol);

/** Returns the color, or null. */
VQ_MXD_API const vq_mxd_color* vq_mxd_char_marker_symbol_get_color(
    const vq_mxd_char_marker_symbol* symbol);

/** Returns the font name. Prefer it to the font record's name, which may be empty. */
VQ_MXD_API const vq_mxd_char* vq_mxd_char_marker_symbol_get_font_name(
    const vq_mxd_char_marker_symbol* symbol);

/** Returns the font record; never null. Its size is 0 if the document holds none. */
VQ_MXD_API const vq_mxd_font* vq_mxd_char_marker_symbol_get_font(
    const vq_mxd_char_marker_symbol* symbol);
/** @} */

/** @name Simple marker */ /** @{ */

/** Returns the shape: 0 circle, 1 square, 2 cross, 3 X, 4 diamond. */
VQ_MXD_API uint32_t
vq_mxd_simple_marker_symbol_get_simple_marker_style(const vq_mxd_simple_marker_symbol* symbol);

/** Returns the size in points. */
VQ_MXD_API double vq_mxd_simple_marker_symbol_get_size(const vq_mxd_simple_marker_symbol* symbol);

/** Returns the angle in degrees, counter-clockwise. */
VQ_MXD_API double vq_mxd_simple_marker_symbol_get_angle(const vq_mxd_simple_marker_symbol* symbol);

/** Returns the offset to the right, in points. */
VQ_MXD_API double vq_mxd_simple_marker_symbol_get_x_offset(
    const vq_mxd_simple_marker_symbol* symbol);

/** Returns the offset upwards, in points. */
VQ_MXD_API double vq_mxd_simple_marker_symbol_get_y_offset(
    const vq_mxd_simple_marker_symbol* symbol);

/** Returns the color, or null. */
VQ_MXD_API const vq_mxd_color* vq_mxd_simple_marker_symbol_get_color(
    const vq_mxd_simple_marker_symbol* symbol);

/** Returns non-zero if the outline is drawn. */
VQ_MXD_API uint8_t
vq_mxd_simple_marker_symbol_get_outline_flag(const vq_mxd_simple_marker_symbol* symbol);

/** Returns the width of the outline in points. */
VQ_MXD_API double vq_mxd_simple_marker_symbol_get_outline_width(
    const vq_mxd_simple_marker_symbol* symbol);

/** Returns the color of the outline, or null. */
VQ_MXD_API const vq_mxd_color* vq_mxd_simple_marker_symbol_get_outline_color(
    const vq_mxd_simple_marker_symbol* symbol);
/** @} */

/** @name Multilayer marker */ /** @{ */

/** Returns the symbol layers, topmost first; never null. */
VQ_MXD_API const vq_mxd_marker_symbols* vq_mxd_multilayer_marker_symbol_get_marker_symbols(
    const vq_mxd_multilayer_marker_symbol* symbol);
/** @} */

/** @name List of marker symbols */ /** @{ */

/** Returns the number of marker symbols. */
VQ_MXD_API int64_t vq_mxd_marker_symbols_get_size(const vq_mxd_marker_symbols* symbols);

/** Returns the marker symbol at the index, or null if the index is out of range. */
VQ_MXD_API const vq_mxd_symbol* vq_mxd_marker_symbols_get(const vq_mxd_marker_symbols* symbols,
                                                          int32_t index);
/** @} */

/** @name Line template */ /** @{ */

/** Returns the unit length of the pattern in points. */
VQ_MXD_API double vq_mxd_line_template_get_pattern_interval(
    const vq_mxd_line_template* line_template);

/** Returns the number of items; 0 for a solid line. */
VQ_MXD_API int64_t vq_mxd_line_template_get_size(const vq_mxd_line_template* line_template);

/** Returns the item at the index, or null if the index is out of range. */
VQ_MXD_API const vq_mxd_line_template_item* vq_mxd_line_template_get(
    const vq_mxd_line_template* line_template, int32_t index);
/** @} */

/** @name Line template item */ /** @{ */

/** Returns the length of the dash, in units of the pattern interval. */
VQ_MXD_API double vq_mxd_line_template_item_get_filled_squares(
    const vq_mxd_line_template_item* item);

/** Returns the length of the gap, in units of the pattern interval. */
VQ_MXD_API double vq_mxd_line_template_item_get_empty_squares(
    const vq_mxd_line_template_item* item);
/** @} */

/** @name Simple line */ /** @{ */

/** Returns the color, or null. */
VQ_MXD_API const vq_mxd_color* vq_mxd_simple_line_symbol_get_color(
    const vq_mxd_simple_line_symbol* symbol);

/** Returns the width in points. */
VQ_MXD_API double vq_mxd_simple_line_symbol_get_width(const vq_mxd_simple_line_symbol* symbol);

/** Returns the style: 0 solid, 1 dashed, 2 dotted, 3 dash-dot, 4 dash-dot-dot, 5 none (not drawn),
   6 inside frame. */
VQ_MXD_API uint32_t
vq_mxd_simple_line_symbol_get_simple_line_style(const vq_mxd_simple_line_symbol* symbol);
/** @} */

/** @name Cartographic line */ /** @{ */

/** Returns the color, or null. */
VQ_MXD_API const vq_mxd_color* vq_mxd_cartographic_line_symbol_get_color(
    const vq_mxd_cartographic_line_symbol* symbol);

/** Returns the width in points. */
VQ_MXD_API double vq_mxd_cartographic_line_symbol_get_width(
    const vq_mxd_cartographic_line_symbol* symbol);

/** Returns the offset from the line in points, positive to the left. */
VQ_MXD_API double vq_mxd_cartographic_line_symbol_get_offset(
    const vq_mxd_cartographic_line_symbol* symbol);

/** Returns the dash pattern; never null, without items for a solid line. */
VQ_MXD_API const vq_mxd_line_template* vq_mxd_cartographic_line_symbol_get_line_template(
    const vq_mxd_cartographic_line_symbol* symbol);
/** @} */

/** @name Hash line */ /** @{ */

/** Returns the color, or null. */
VQ_MXD_API const vq_mxd_color* vq_mxd_hash_line_symbol_get_color(
    const vq_mxd_hash_line_symbol* symbol);

/** Returns the width in points: the length of the strokes. */
VQ_MXD_API double vq_mxd_hash_line_symbol_get_width(const vq_mxd_hash_line_symbol* symbol);

/** Returns the angle of the strokes in degrees, counter-clockwise from the line's direction. */
VQ_MXD_API double vq_mxd_hash_line_symbol_get_angle(const vq_mxd_hash_line_symbol* symbol);

/** Returns the offset from the line in points, positive to the left. */
VQ_MXD_API double vq_mxd_hash_line_symbol_get_offset(const vq_mxd_hash_line_symbol* symbol);

/** Returns the symbol that draws each stroke, or null. */
VQ_MXD_API const vq_mxd_symbol* vq_mxd_hash_line_symbol_get_line(
    const vq_mxd_hash_line_symbol* symbol);

/** Returns the pattern that places the strokes; never null. */
VQ_MXD_API const vq_mxd_line_template* vq_mxd_hash_line_symbol_get_line_template(
    const vq_mxd_hash_line_symbol* symbol);
/** @} */

/** @name Marker line */ /** @{ */

/** Returns the offset from the line in points, positive to the left. */
VQ_MXD_API double vq_mxd_marker_line_symbol_get_offset(const vq_mxd_marker_line_symbol* symbol);

/** Returns the marker repeated along the line, or null. */
VQ_MXD_API const vq_mxd_symbol* vq_mxd_marker_line_symbol_get_pattern_marker(
    const vq_mxd_marker_line_symbol* symbol);

/** Returns the pattern that places the markers; never null. */
VQ_MXD_API const vq_mxd_line_template* vq_mxd_marker_line_symbol_get_line_template(
    const vq_mxd_marker_line_symbol* symbol);
/** @} */

/** @name Multilayer line */ /** @{ */

/** Returns the symbol layers, topmost first; never null. */
VQ_MXD_API const vq_mxd_line_symbols* vq_mxd_multilayer_line_symbol_get_line_symbols(
    const vq_mxd_multilayer_line_symbol* symbol);
/** @} */

/** @name List of line symbols */ /** @{ */

/** Returns the number of line symbols. */
VQ_MXD_API int64_t vq_mxd_line_symbols_get_size(const vq_mxd_line_symbols* symbols);

/** Returns the line symbol at the index, or null if the index is too large. Unlike in the other
   lists, a negative index is not checked and must not be passed. */
VQ_MXD_API const vq_mxd_symbol* vq_mxd_line_symbols_get(const vq_mxd_line_symbols* symbols,
                                                        int32_t index);
/** @} */

/** @name Simple fill */ /** @{ */

/** Returns the color, or null. */
VQ_MXD_API const vq_mxd_color* vq_mxd_simple_fill_symbol_get_color(
    const vq_mxd_simple_fill_symbol* symbol);

/** Returns the line symbol of the outline, or null. */
VQ_MXD_API const vq_mxd_symbol* vq_mxd_simple_fill_symbol_get_outline(
    const vq_mxd_simple_fill_symbol* symbol);
/** @} */

/** @name Line fill */ /** @{ */

/** Returns the line symbol of the hatching, or null. */
VQ_MXD_API const vq_mxd_symbol* vq_mxd_line_fill_symbol_get_pattern(
    const vq_mxd_line_fill_symbol* symbol);

/** Returns the line symbol of the outline, or null. */
VQ_MXD_API const vq_mxd_symbol* vq_mxd_line_fill_symbol_get_outline(
    const vq_mxd_line_fill_symbol* symbol);

/** Returns the angle of the hatching in degrees, counter-clockwise from horizontal. */
VQ_MXD_API double vq_mxd_line_fill_symbol_get_angle(const vq_mxd_line_fill_symbol* symbol);

/** Returns the offset of the hatching in points. */
VQ_MXD_API double vq_mxd_line_fill_symbol_get_offset(const vq_mxd_line_fill_symbol* symbol);

/** Returns the distance between two lines in points. */
VQ_MXD_API double vq_mxd_line_fill_symbol_get_separation(const vq_mxd_line_fill_symbol* symbol);
/** @} */

/** @name Marker fill */ /** @{ */

/** Returns the marker repeated over the area, or null. */
VQ_MXD_API const vq_mxd_symbol* vq_mxd_marker_fill_symbol_get_marker(
    const vq_mxd_marker_fill_symbol* symbol);

/** Returns the line symbol of the outline, or null. */
VQ_MXD_API const vq_mxd_symbol* vq_mxd_marker_fill_symbol_get_outline(
    const vq_mxd_marker_fill_symbol* symbol);

/** Returns the offset of the markers to the right, in points. */
VQ_MXD_API double vq_mxd_marker_fill_symbol_get_offset_x(const vq_mxd_marker_fill_symbol* symbol);

/** Returns the offset of the markers upwards, in points. */
VQ_MXD_API double vq_mxd_marker_fill_symbol_get_offset_y(const vq_mxd_marker_fill_symbol* symbol);

/** Returns the distance between two markers of a row in points. */
VQ_MXD_API double vq_mxd_marker_fill_symbol_get_separation_x(
    const vq_mxd_marker_fill_symbol* symbol);

/** Returns the distance between two rows of markers in points. */
VQ_MXD_API double vq_mxd_marker_fill_symbol_get_separation_y(
    const vq_mxd_marker_fill_symbol* symbol);

/** Returns how the markers are placed, as stored: 0 in a grid, 1 at random. */
VQ_MXD_API uint32_t vq_mxd_marker_fill_symbol_get_random(const vq_mxd_marker_fill_symbol* symbol);
/** @} */

/** @name Multilayer fill */ /** @{ */

/** Returns the symbol layers, topmost first; never null. */
VQ_MXD_API const vq_mxd_fill_symbols* vq_mxd_multilayer_fill_symbol_get_fill_symbols(
    const vq_mxd_multilayer_fill_symbol* symbol);
/** @} */

/** @name List of fill symbols */ /** @{ */

/** Returns the number of fill symbols. */
VQ_MXD_API int64_t vq_mxd_fill_symbols_get_size(const vq_mxd_fill_symbols* symbols);

/** Returns the fill symbol at the index, or null if the index is out of range. */
VQ_MXD_API const vq_mxd_symbol* vq_mxd_fill_symbols_get(const vq_mxd_fill_symbols* symbols,
                                                        int32_t index);
/** @} */

#ifdef __cplusplus
}

/* vq_mxd_obj_of has one overload per kind of object. extern "C++" because some hosts include C
   headers inside extern "C". */
extern "C++" {
#define VQ_MXD_OBJECT(type)                                    \
  inline const vq_mxd_obj* vq_mxd_obj_of(const type* handle) { \
    return reinterpret_cast<const vq_mxd_obj*>(handle);        \
  }
VQ_MXD_OBJECT(vq_mxd_obj)
VQ_MXD_OBJECT(vq_mxd_map)
VQ_MXD_OBJECT(vq_mxd_coordinate_system)
VQ_MXD_OBJECT(vq_mxd_layer)
VQ_MXD_OBJECT(vq_mxd_group_layer)
VQ_MXD_OBJECT(vq_mxd_feature_layer)
VQ_MXD_OBJECT(vq_mxd_basic_feature_class_name)
VQ_MXD_OBJECT(vq_mxd_workspace_name)
VQ_MXD_OBJECT(vq_mxd_renderer)
VQ_MXD_OBJECT(vq_mxd_simple_renderer)
VQ_MXD_OBJECT(vq_mxd_unique_value_renderer)
VQ_MXD_OBJECT(vq_mxd_class_breaks_renderer)
VQ_MXD_OBJECT(vq_mxd_legend_group)
VQ_MXD_OBJECT(vq_mxd_legend_class)
VQ_MXD_OBJECT(vq_mxd_symbol)
VQ_MXD_OBJECT(vq_mxd_char_marker_symbol)
VQ_MXD_OBJECT(vq_mxd_simple_marker_symbol)
VQ_MXD_OBJECT(vq_mxd_multilayer_marker_symbol)
VQ_MXD_OBJECT(vq_mxd_simple_line_symbol)
VQ_MXD_OBJECT(vq_mxd_cartographic_line_symbol)
VQ_MXD_OBJECT(vq_mxd_hash_line_symbol)
VQ_MXD_OBJECT(vq_mxd_marker_line_symbol)
VQ_MXD_OBJECT(vq_mxd_multilayer_line_symbol)
VQ_MXD_OBJECT(vq_mxd_simple_fill_symbol)
VQ_MXD_OBJECT(vq_mxd_line_fill_symbol)
VQ_MXD_OBJECT(vq_mxd_marker_fill_symbol)
VQ_MXD_OBJECT(vq_mxd_multilayer_fill_symbol)
VQ_MXD_OBJECT(vq_mxd_color)
VQ_MXD_OBJECT(vq_mxd_line_template)
#undef VQ_MXD_OBJECT
}
#endif

#endif
