/** @file
 * vqk_file_mxd: reads ArcMap map documents (.mxd) without ArcMap.
 *
 * @par Handles
 * Every handle is an opaque pointer into a document's tree. A document is made by
 * vq_mxd_mxd_create and freed by vq_mxd_mxd_destroy; every other handle belongs to its document and
 * is never freed by the caller.
 *
 * @par Lifetime
 * All handles and texts below a document stay valid until it is loaded again or
 * destroyed.
 *
 * @par Objects
 * Map, layer, symbol, color, renderer, name, coordinate system, line template and legend
 * handles are objects: VQ_MXD_OBJ(handle) gives the vq_mxd_obj that the functions common to all
 * objects take. A cast function gives the handle of the concrete class, or null where the object is
 * of another.
 *
 * @par Null
 * An object getter gives null where the document held no such object. Lists and records are
 * members and never null. Null may be passed to vq_mxd_mxd_destroy and to the casts only.
 *
 * @par Texts
 * UTF-16 units closed by NUL (vq_mxd_char: wchar_t on Windows, char16_t elsewhere), or 8-bit
 * where the type is char. They are owned by their object and empty where nothing was read. Paths
 * are UTF-16 everywhere.
 *
 * @par Numbers
 * A field that was not read is 0 or 0.0. Flags are handed out as they are stored.
 *
 * @par Errors
 * A load that finds maps succeeds, however much of them could not be decoded; each object
 * that could not be read is told in one line on standard output, "ERROR IN", its number, its type
 * and its position. Nothing is thrown.
 *
 * @par Threads
 * Nothing locks. One document and its tree are used by one thread at a time, even for
 * reading; different documents are independent.
 */
#ifndef VQK_FILE_MXD_H
#define VQK_FILE_MXD_H

#include <stdint.h>

/** What marks the exported functions. VQK_FILE_MXD_STATIC is to be defined where the static library
   is used on Windows. */
#if defined(_WIN32)
#if defined(VQK_FILE_MXD_BUILD)
#define VQ_MXD_API __declspec(dllexport)
#elif defined(VQK_FILE_MXD_STATIC)
#define VQ_MXD_API
#else
#define VQ_MXD_API __declspec(dllimport)
#endif
#elif defined(__GNUC__)
#define VQ_MXD_API __attribute__((visibility("default")))
#else
#define VQ_MXD_API
#endif

/** One unit of UTF-16 text. In C, char16_t is another name of uint_least16_t. */
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
/** The list of a document's maps. */
typedef struct vq_mxd_maps vq_mxd_maps;
/** Any object of the tree. */
typedef struct vq_mxd_obj vq_mxd_obj;
/** A map. */
typedef struct vq_mxd_map vq_mxd_map;
/** A coordinate system. */
typedef struct vq_mxd_coordinate_system vq_mxd_coordinate_system;

/** The list of a map's layers. */
typedef struct vq_mxd_layers vq_mxd_layers;
/** Any layer. */
typedef struct vq_mxd_layer vq_mxd_layer;
/** A layer that groups others. */
typedef struct vq_mxd_group_layer vq_mxd_group_layer;
/** A layer of features: points, lines or areas. */
typedef struct vq_mxd_feature_layer vq_mxd_feature_layer;

/** The name of a feature class: which data a layer shows. */
typedef struct vq_mxd_basic_feature_class_name vq_mxd_basic_feature_class_name;
/** The name of a workspace: where data lives. */
typedef struct vq_mxd_workspace_name vq_mxd_workspace_name;

/** Any renderer: how a layer's features are drawn. */
typedef struct vq_mxd_renderer vq_mxd_renderer;
/** All features with one symbol. */
typedef struct vq_mxd_simple_renderer vq_mxd_simple_renderer;
/** A symbol for each value of one to three fields. */
typedef struct vq_mxd_unique_value_renderer vq_mxd_unique_value_renderer;
/** A symbol for each range of a field's values. */
typedef struct vq_mxd_class_breaks_renderer vq_mxd_class_breaks_renderer;

/** A part of a legend, with a heading. */
typedef struct vq_mxd_legend_group vq_mxd_legend_group;
/** A line of a legend: a symbol and its label. */
typedef struct vq_mxd_legend_class vq_mxd_legend_class;
/** The list of a unique value renderer's values. */
typedef struct vq_mxd_unique_values vq_mxd_unique_values;
/** A value of a unique value renderer. */
typedef struct vq_mxd_unique_value vq_mxd_unique_value;
/** The ranges of a class breaks renderer. */
typedef struct vq_mxd_ranges vq_mxd_ranges;

/** Any symbol. */
typedef struct vq_mxd_symbol vq_mxd_symbol;
/** A character of a font. */
typedef struct vq_mxd_char_marker_symbol vq_mxd_char_marker_symbol;
/** A circle, square, cross, X or diamond. */
typedef struct vq_mxd_simple_marker_symbol vq_mxd_simple_marker_symbol;
/** Markers on top of each other. */
typedef struct vq_mxd_multilayer_marker_symbol vq_mxd_multilayer_marker_symbol;
/** A line, solid or in a simple pattern. */
typedef struct vq_mxd_simple_line_symbol vq_mxd_simple_line_symbol;
/** A line with a dash pattern and decorations. */
typedef struct vq_mxd_cartographic_line_symbol vq_mxd_cartographic_line_symbol;
/** A line of hashes across. */
typedef struct vq_mxd_hash_line_symbol vq_mxd_hash_line_symbol;
/** A line of markers. */
typedef struct vq_mxd_marker_line_symbol vq_mxd_marker_line_symbol;
/** Lines on top of each other. */
typedef struct vq_mxd_multilayer_line_symbol vq_mxd_multilayer_line_symbol;
/** An area in one color. */
typedef struct vq_mxd_simple_fill_symbol vq_mxd_simple_fill_symbol;
/** A hatched area. */
typedef struct vq_mxd_line_fill_symbol vq_mxd_line_fill_symbol;
/** An area with markers all over. */
typedef struct vq_mxd_marker_fill_symbol vq_mxd_marker_fill_symbol;
/** Fills on top of each other. */
typedef struct vq_mxd_multilayer_fill_symbol vq_mxd_multilayer_fill_symbol;

/** A color. */
typedef struct vq_mxd_color vq_mxd_color;
/** The font of a character marker. */
typedef struct vq_mxd_font vq_mxd_font;
/** The dash pattern of a line. */
typedef struct vq_mxd_line_template vq_mxd_line_template;
/** A dash and the gap behind it. */
typedef struct vq_mxd_line_template_item vq_mxd_line_template_item;
/** The list of a multilayer marker's layers. */
typedef struct vq_mxd_marker_symbols vq_mxd_marker_symbols;
/** The list of a multilayer line's layers. */
typedef struct vq_mxd_line_symbols vq_mxd_line_symbols;
/** The list of a multilayer fill's layers. */
typedef struct vq_mxd_fill_symbols vq_mxd_fill_symbols;

/** An object handle as what the functions common to all objects take. */
#define VQ_MXD_OBJ(handle) ((const vq_mxd_obj*)(handle))
/** @} */

/** @name Document */ /** @{ */

/** A new, empty document, owned by the caller; null only when memory runs out. */
VQ_MXD_API vq_mxd_mxd* vq_mxd_mxd_create(void);

/** Frees the document with everything below it. Null is ignored. */
VQ_MXD_API void vq_mxd_mxd_destroy(vq_mxd_mxd* document);

/** Reads the file at the path, after forgetting what the document held. 1 when the file holds maps
   (or none at all), 0 when it cannot be opened or is no map document; the document is empty then
   and may be loaded again. */
VQ_MXD_API int vq_mxd_mxd_load(vq_mxd_mxd* document, const vq_mxd_char* path);

/** Writes the whole tree to the path as XML. 1 when the file could be opened, else 0. */
VQ_MXD_API int vq_mxd_mxd_save_xml(const vq_mxd_mxd* document, const vq_mxd_char* path);

/** The document's maps; never null, empty before the first load. */
VQ_MXD_API const vq_mxd_maps* vq_mxd_mxd_get_maps(const vq_mxd_mxd* document);

/** The number of maps. */
VQ_MXD_API int64_t vq_mxd_maps_get_size(const vq_mxd_maps* maps);

/** The map at the index, which must be from 0 to the size less 1: it is not checked. */
VQ_MXD_API const vq_mxd_map* vq_mxd_maps_get(const vq_mxd_maps* maps, int32_t index);
/** @} */

/** @name Any object */ /** @{ */

/** 1, or 0 for a member object that the document did not hold. Of what a reference repeats, the
   members always answer 1. */
VQ_MXD_API int vq_mxd_obj_get_exists(const vq_mxd_obj* object);

/** 1 when the document held only a reference to an object that it had stored before. */
VQ_MXD_API int vq_mxd_obj_get_repeat(const vq_mxd_obj* object);

/** The object's number in the document; objects of equal numbers are one stored object. Whatever is
   held by an object that only repeats another has the number 0. */
VQ_MXD_API unsigned int vq_mxd_obj_get_number(const vq_mxd_obj* object);

/** The name of the object's class, such as "mxd_simple_line_symbol". Valid as long as the object
   is. */
VQ_MXD_API const char* vq_mxd_obj_get_type_str(const vq_mxd_obj* object);
/** @} */

/** @name Map */ /** @{ */

/** The map's name. */
VQ_MXD_API const vq_mxd_char* vq_mxd_map_get_name(const vq_mxd_map* map);

/** The map's layers in one flat list, a group's members behind the group; never null. */
VQ_MXD_API const vq_mxd_layers* vq_mxd_map_get_layers(const vq_mxd_map* map);

/** The coordinate system that the map is shown in, or null. */
VQ_MXD_API const vq_mxd_coordinate_system* vq_mxd_map_get_coordinate_system(const vq_mxd_map* map);
/** @} */

/** @name Coordinate system */ /** @{ */

/** The coordinate system as well-known text, 8-bit as stored; empty for an unknown one. */
VQ_MXD_API const char* vq_mxd_coordinate_system_get_wkt(const vq_mxd_coordinate_system* system);
/** @} */

/** @name Layers */ /** @{ */

/** The number of layers. */
VQ_MXD_API int64_t vq_mxd_layers_get_size(const vq_mxd_layers* layers);

/** The layer at the index, or null for an index outside. */
VQ_MXD_API const vq_mxd_layer* vq_mxd_layers_get(const vq_mxd_layers* layers, int32_t index);
/** @} */

/** @name Any layer */ /** @{ */

/** The layer as a group layer, or null. */
VQ_MXD_API const vq_mxd_group_layer* vq_mxd_layer_cast_group_layer(const vq_mxd_layer* layer);

/** The layer as a feature layer, or null. */
VQ_MXD_API const vq_mxd_feature_layer* vq_mxd_layer_cast_feature_layer(const vq_mxd_layer* layer);

/** The layer's name. */
VQ_MXD_API const vq_mxd_char* vq_mxd_layer_get_layer_name(const vq_mxd_layer* layer);

/** The name of the layer's kind, as stored; only feature layers have one. */
VQ_MXD_API const vq_mxd_char* vq_mxd_layer_get_layer_type_name(const vq_mxd_layer* layer);

/** Not 0 when the layer is switched on; of group and feature layers only. */
VQ_MXD_API uint16_t vq_mxd_layer_get_visible(const vq_mxd_layer* layer);

/** The denominator of the smallest scale at which a feature layer is drawn; 0 is no limit. */
VQ_MXD_API double vq_mxd_layer_get_min_scale(const vq_mxd_layer* layer);

/** The denominator of the largest scale at which a feature layer is drawn; 0 is no limit. */
VQ_MXD_API double vq_mxd_layer_get_max_scale(const vq_mxd_layer* layer);
/** @} */

/** @name Group layer */ /** @{ */

/** How many layers the group holds. They follow it in the map's list. */
VQ_MXD_API uint32_t vq_mxd_group_layer_get_layer_count(const vq_mxd_group_layer* layer);
/** @} */

/** @name Feature layer */ /** @{ */

/** The name of the layer's feature class, or null. */
VQ_MXD_API const vq_mxd_basic_feature_class_name* vq_mxd_feature_layer_get_basic_feature_class_name(
    const vq_mxd_feature_layer* layer);

/** The workspace (folder, database) that the feature class lives in; never null. */
VQ_MXD_API const vq_mxd_workspace_name* vq_mxd_feature_layer_get_workspace_name(
    const vq_mxd_feature_layer* layer);

/** How the features are drawn, or null. */
VQ_MXD_API const vq_mxd_renderer* vq_mxd_feature_layer_get_renderer(
    const vq_mxd_feature_layer* layer);

/** The coordinate system of the data, or null. */
VQ_MXD_API const vq_mxd_coordinate_system* vq_mxd_feature_layer_get_coordinate_system(
    const vq_mxd_feature_layer* layer);
/** @} */

/** @name Feature class name */ /** @{ */

/** The feature class's name. */
VQ_MXD_API const vq_mxd_char* vq_mxd_basic_feature_class_name_get_name(
    const vq_mxd_basic_feature_class_name* name);

/** The first name of the feature class's type, as stored. */
VQ_MXD_API const vq_mxd_char* vq_mxd_basic_feature_class_name_get_type_name1(
    const vq_mxd_basic_feature_class_name* name);

/** The second name of the feature class's type, as stored. */
VQ_MXD_API const vq_mxd_char* vq_mxd_basic_feature_class_name_get_type_name2(
    const vq_mxd_basic_feature_class_name* name);

/** The number of the geometry's type, as stored. */
VQ_MXD_API uint32_t
vq_mxd_basic_feature_class_name_get_geom_type(const vq_mxd_basic_feature_class_name* name);
/** @} */

/** @name Workspace name */ /** @{ */

/** The workspace's name: a path, or what the database connection is known by. */
VQ_MXD_API const vq_mxd_char* vq_mxd_workspace_name_get_name(const vq_mxd_workspace_name* name);
/** @} */

/** @name Any renderer */ /** @{ */

/** The renderer as a simple renderer, or null. */
VQ_MXD_API const vq_mxd_simple_renderer* vq_mxd_renderer_cast_simple_renderer(
    const vq_mxd_renderer* renderer);

/** The renderer as a unique value renderer, or null. */
VQ_MXD_API const vq_mxd_unique_value_renderer* vq_mxd_renderer_cast_unique_value_renderer(
    const vq_mxd_renderer* renderer);

/** The renderer as a class breaks renderer, or null. */
VQ_MXD_API const vq_mxd_class_breaks_renderer* vq_mxd_renderer_cast_class_breaks_renderer(
    const vq_mxd_renderer* renderer);
/** @} */

/** @name Simple renderer */ /** @{ */

/** The symbol of all features, or null. */
VQ_MXD_API const vq_mxd_symbol* vq_mxd_simple_renderer_get_symbol(
    const vq_mxd_simple_renderer* renderer);

/** The legend; never null. */
VQ_MXD_API const vq_mxd_legend_group* vq_mxd_simple_renderer_get_legend_group(
    const vq_mxd_simple_renderer* renderer);
/** @} */

/** @name Unique value renderer */ /** @{ */

/** How many attribute fields make up a value, as stored. */
VQ_MXD_API uint32_t
vq_mxd_unique_value_renderer_get_propname_count(const vq_mxd_unique_value_renderer* renderer);

/** The name of the first field. */
VQ_MXD_API const vq_mxd_char* vq_mxd_unique_value_renderer_get_propname1(
    const vq_mxd_unique_value_renderer* renderer);

/** The name of the second field. */
VQ_MXD_API const vq_mxd_char* vq_mxd_unique_value_renderer_get_propname2(
    const vq_mxd_unique_value_renderer* renderer);

/** The name of the third field. */
VQ_MXD_API const vq_mxd_char* vq_mxd_unique_value_renderer_get_propname3(
    const vq_mxd_unique_value_renderer* renderer);

/** The symbol of features that have none of the values, or null. */
VQ_MXD_API const vq_mxd_symbol* vq_mxd_unique_value_renderer_get_symbol(
    const vq_mxd_unique_value_renderer* renderer);

/** The legend of features that have none of the values; never null. */
VQ_MXD_API const vq_mxd_legend_group* vq_mxd_unique_value_renderer_get_other_leg_grp(
    const vq_mxd_unique_value_renderer* renderer);

/** The legend of the values; never null, but it may not exist. */
VQ_MXD_API const vq_mxd_legend_group* vq_mxd_unique_value_renderer_get_main_leg_grp(
    const vq_mxd_unique_value_renderer* renderer);

/** The values; never null. */
VQ_MXD_API const vq_mxd_unique_values* vq_mxd_unique_value_renderer_get_unique_values(
    const vq_mxd_unique_value_renderer* renderer);
/** @} */

/** @name List of unique values */ /** @{ */

/** The number of values. */
VQ_MXD_API int64_t vq_mxd_unique_values_get_size(const vq_mxd_unique_values* values);

/** The value at the index, or null for an index outside. */
VQ_MXD_API const vq_mxd_unique_value* vq_mxd_unique_values_get(const vq_mxd_unique_values* values,
                                                               int32_t index);
/** @} */

/** @name Unique value */ /** @{ */

/** The value as text; values of several fields are joined as the document holds them. */
VQ_MXD_API const vq_mxd_char* vq_mxd_unique_value_get_str(const vq_mxd_unique_value* value);

/** A number that is kept as stored. */
VQ_MXD_API uint32_t vq_mxd_unique_value_get_int1(const vq_mxd_unique_value* value);

/** A number that is kept as stored. */
VQ_MXD_API uint32_t vq_mxd_unique_value_get_int2(const vq_mxd_unique_value* value);

/** A number that is kept as stored. */
VQ_MXD_API uint32_t vq_mxd_unique_value_get_int3(const vq_mxd_unique_value* value);
/** @} */

/** @name Class breaks renderer */ /** @{ */

/** The name of the field whose value is classified. */
VQ_MXD_API const vq_mxd_char* vq_mxd_class_breaks_renderer_get_propname(
    const vq_mxd_class_breaks_renderer* renderer);

/** The ranges; never null. */
VQ_MXD_API const vq_mxd_ranges* vq_mxd_class_breaks_renderer_get_ranges(
    const vq_mxd_class_breaks_renderer* renderer);

/** The legend, a class for each range; never null. */
VQ_MXD_API const vq_mxd_legend_group* vq_mxd_class_breaks_renderer_get_main_leg_grp(
    const vq_mxd_class_breaks_renderer* renderer);
/** @} */

/** @name Ranges */ /** @{ */

/** The number of ranges. */
VQ_MXD_API int32_t vq_mxd_ranges_get_size(const vq_mxd_ranges* ranges);

/** The lower bound of the range at the index, or 0.0 for an index outside. */
VQ_MXD_API double vq_mxd_ranges_get_min_bnd(const vq_mxd_ranges* ranges, int32_t index);

/** The upper bound of the range at the index, or 0.0 for an index outside. */
VQ_MXD_API double vq_mxd_ranges_get_max_bnd(const vq_mxd_ranges* ranges, int32_t index);
/** @} */

/** @name Legend group */ /** @{ */

/** The group's heading. */
VQ_MXD_API const vq_mxd_char* vq_mxd_legend_group_get_label(const vq_mxd_legend_group* group);

/** The number of legend classes. */
VQ_MXD_API int64_t vq_mxd_legend_group_get_size(const vq_mxd_legend_group* group);

/** The legend class at the index, or null for an index outside. */
VQ_MXD_API const vq_mxd_legend_class* vq_mxd_legend_group_get(const vq_mxd_legend_group* group,
                                                              int32_t index);
/** @} */

/** @name Legend class */ /** @{ */

/** The text beside the symbol. */
VQ_MXD_API const vq_mxd_char* vq_mxd_legend_class_get_label(
    const vq_mxd_legend_class* legend_class);

/** The symbol, or null. */
VQ_MXD_API const vq_mxd_symbol* vq_mxd_legend_class_get_symbol(
    const vq_mxd_legend_class* legend_class);
/** @} */

/** @name Any symbol */ /** @{ */

/** The symbol as a character marker symbol, or null. */
VQ_MXD_API const vq_mxd_char_marker_symbol* vq_mxd_symbol_cast_char_marker(
    const vq_mxd_symbol* symbol);

/** The symbol as a multilayer marker symbol, or null. */
VQ_MXD_API const vq_mxd_multilayer_marker_symbol* vq_mxd_symbol_cast_multilayer_marker(
    const vq_mxd_symbol* symbol);

/** The symbol as a simple marker symbol, or null. */
VQ_MXD_API const vq_mxd_simple_marker_symbol* vq_mxd_symbol_cast_simple_marker(
    const vq_mxd_symbol* symbol);

/** The symbol as a cartographic line symbol, or null. */
VQ_MXD_API const vq_mxd_cartographic_line_symbol* vq_mxd_symbol_cast_cartographic_line(
    const vq_mxd_symbol* symbol);

/** The symbol as a hash line symbol, or null. */
VQ_MXD_API const vq_mxd_hash_line_symbol* vq_mxd_symbol_cast_hash_line(const vq_mxd_symbol* symbol);

/** The symbol as a marker line symbol, or null. */
VQ_MXD_API const vq_mxd_marker_line_symbol* vq_mxd_symbol_cast_marker_line(
    const vq_mxd_symbol* symbol);

/** The symbol as a multilayer line symbol, or null. */
VQ_MXD_API const vq_mxd_multilayer_line_symbol* vq_mxd_symbol_cast_multilayer_line(
    const vq_mxd_symbol* symbol);

/** The symbol as a simple line symbol, or null. */
VQ_MXD_API const vq_mxd_simple_line_symbol* vq_mxd_symbol_cast_simple_line(
    const vq_mxd_symbol* symbol);

/** The symbol as a line fill symbol, or null. */
VQ_MXD_API const vq_mxd_line_fill_symbol* vq_mxd_symbol_cast_line_fill(const vq_mxd_symbol* symbol);

/** The symbol as a marker fill symbol, or null. */
VQ_MXD_API const vq_mxd_marker_fill_symbol* vq_mxd_symbol_cast_marker_fill(
    const vq_mxd_symbol* symbol);

/** The symbol as a multilayer fill symbol, or null. */
VQ_MXD_API const vq_mxd_multilayer_fill_symbol* vq_mxd_symbol_cast_multilayer_fill(
    const vq_mxd_symbol* symbol);

/** The symbol as a simple fill symbol, or null. */
VQ_MXD_API const vq_mxd_simple_fill_symbol* vq_mxd_symbol_cast_simple_fill(
    const vq_mxd_symbol* symbol);

/** 1 when the symbol is drawn, 0 when a multilayer symbol switches it off as a layer. */
VQ_MXD_API uint8_t vq_mxd_symbol_get_enabled(const vq_mxd_symbol* symbol);

/** 1 when the symbol is locked as a layer of a multilayer symbol. */
VQ_MXD_API uint8_t vq_mxd_symbol_get_locked(const vq_mxd_symbol* symbol);

/** The tag that a multilayer symbol gives the symbol as a layer. */
VQ_MXD_API const vq_mxd_char* vq_mxd_symbol_get_tag(const vq_mxd_symbol* symbol);
/** @} */

/** @name Color */ /** @{ */

/** 1 when the color is dithered, else 0. */
VQ_MXD_API int vq_mxd_color_get_dither_flag(const vq_mxd_color* color);

/** 1 when the color is not used: nothing is to be drawn with it; else 0. */
VQ_MXD_API int vq_mxd_color_get_no_use_flag(const vq_mxd_color* color);

/** The color as 8-bit red, green and blue, which must not be null. The result is 1 but for cmyk
   colors, for which it is the blue value: it is no measure of success. */
VQ_MXD_API int vq_mxd_color_get_rgb(const vq_mxd_color* color, uint8_t* red, uint8_t* green,
                                    uint8_t* blue);
/** @} */

/** @name Font of a character marker */ /** @{ */

/** The face name, 8-bit as stored. */
VQ_MXD_API const char* vq_mxd_font_get_font_name(const vq_mxd_font* font);

/** The size in points. */
VQ_MXD_API double vq_mxd_font_get_size(const vq_mxd_font* font);

/** The weight: 400 is normal, 700 bold. */
VQ_MXD_API uint16_t vq_mxd_font_get_weight(const vq_mxd_font* font);

/** The character set, as stored. */
VQ_MXD_API uint16_t vq_mxd_font_get_charset(const vq_mxd_font* font);

/** 1 for an italic font, else 0. */
VQ_MXD_API int vq_mxd_font_get_italic(const vq_mxd_font* font);

/** 1 for an underlined font, else 0. */
VQ_MXD_API int vq_mxd_font_get_underline(const vq_mxd_font* font);

/** 1 for a struck out font, else 0. */
VQ_MXD_API int vq_mxd_font_get_strikethrough(const vq_mxd_font* font);
/** @} */

/** @name Character marker */ /** @{ */

/** The code of the character that is drawn. */
VQ_MXD_API uint32_t vq_mxd_char_marker_symbol_get_unicode(const vq_mxd_char_marker_symbol* symbol);

/** The size in points. */
VQ_MXD_API double vq_mxd_char_marker_symbol_get_size(const vq_mxd_char_marker_symbol* symbol);

/** The angle in degrees, counter-clockwise. */
VQ_MXD_API double vq_mxd_char_marker_symbol_get_angle(const vq_mxd_char_marker_symbol* symbol);

/** The offset to the right in points. */
VQ_MXD_API double vq_mxd_char_marker_symbol_get_x_offset(const vq_mxd_char_marker_symbol* symbol);

/** The offset upwards in points. */
VQ_MXD_API double vq_mxd_char_marker_symbol_get_y_offset(const vq_mxd_char_marker_symbol* symbol);

/** The color, or null. */
VQ_MXD_API const vq_mxd_color* vq_mxd_char_marker_symbol_get_color(
    const vq_mxd_char_marker_symbol* symbol);

/** The name of the font; the font record may lack it. */
VQ_MXD_API const vq_mxd_char* vq_mxd_char_marker_symbol_get_font_name(
    const vq_mxd_char_marker_symbol* symbol);

/** The font record; never null, with size 0 where the document held none. */
VQ_MXD_API const vq_mxd_font* vq_mxd_char_marker_symbol_get_font(
    const vq_mxd_char_marker_symbol* symbol);
/** @} */

/** @name Simple marker */ /** @{ */

/** The shape: 0 circle, 1 square, 2 cross, 3 X, 4 diamond. */
VQ_MXD_API uint32_t
vq_mxd_simple_marker_symbol_get_simple_marker_style(const vq_mxd_simple_marker_symbol* symbol);

/** The size in points. */
VQ_MXD_API double vq_mxd_simple_marker_symbol_get_size(const vq_mxd_simple_marker_symbol* symbol);

/** The angle in degrees, counter-clockwise. */
VQ_MXD_API double vq_mxd_simple_marker_symbol_get_angle(const vq_mxd_simple_marker_symbol* symbol);

/** The offset to the right in points. */
VQ_MXD_API double vq_mxd_simple_marker_symbol_get_x_offset(
    const vq_mxd_simple_marker_symbol* symbol);

/** The offset upwards in points. */
VQ_MXD_API double vq_mxd_simple_marker_symbol_get_y_offset(
    const vq_mxd_simple_marker_symbol* symbol);

/** The color, or null. */
VQ_MXD_API const vq_mxd_color* vq_mxd_simple_marker_symbol_get_color(
    const vq_mxd_simple_marker_symbol* symbol);

/** Not 0 when the outline is drawn. */
VQ_MXD_API uint8_t
vq_mxd_simple_marker_symbol_get_outline_flag(const vq_mxd_simple_marker_symbol* symbol);

/** The width of the outline in points. */
VQ_MXD_API double vq_mxd_simple_marker_symbol_get_outline_width(
    const vq_mxd_simple_marker_symbol* symbol);

/** The color of the outline, or null. */
VQ_MXD_API const vq_mxd_color* vq_mxd_simple_marker_symbol_get_outline_color(
    const vq_mxd_simple_marker_symbol* symbol);
/** @} */

/** @name Multilayer marker */ /** @{ */

/** The layers, the first drawn on top; never null. */
VQ_MXD_API const vq_mxd_marker_symbols* vq_mxd_multilayer_marker_symbol_get_marker_symbols(
    const vq_mxd_multilayer_marker_symbol* symbol);
/** @} */

/** @name List of marker symbols */ /** @{ */

/** The number of marker symbols. */
VQ_MXD_API int64_t vq_mxd_marker_symbols_get_size(const vq_mxd_marker_symbols* symbols);

/** The marker symbol at the index, or null for an index outside. */
VQ_MXD_API const vq_mxd_symbol* vq_mxd_marker_symbols_get(const vq_mxd_marker_symbols* symbols,
                                                          int32_t index);
/** @} */

/** @name Line template */ /** @{ */

/** The length of a square in points. */
VQ_MXD_API double vq_mxd_line_template_get_pattern_interval(
    const vq_mxd_line_template* line_template);

/** The number of items; 0 for a solid line. */
VQ_MXD_API int64_t vq_mxd_line_template_get_size(const vq_mxd_line_template* line_template);

/** The item at the index, or null for an index outside. */
VQ_MXD_API const vq_mxd_line_template_item* vq_mxd_line_template_get(
    const vq_mxd_line_template* line_template, int32_t index);
/** @} */

/** @name Line template item */ /** @{ */

/** How many squares are drawn. */
VQ_MXD_API double vq_mxd_line_template_item_get_filled_squares(
    const vq_mxd_line_template_item* item);

/** How many squares are then left blank. */
VQ_MXD_API double vq_mxd_line_template_item_get_empty_squares(
    const vq_mxd_line_template_item* item);
/** @} */

/** @name Simple line */ /** @{ */

/** The color, or null. */
VQ_MXD_API const vq_mxd_color* vq_mxd_simple_line_symbol_get_color(
    const vq_mxd_simple_line_symbol* symbol);

/** The width in points. */
VQ_MXD_API double vq_mxd_simple_line_symbol_get_width(const vq_mxd_simple_line_symbol* symbol);

/** The style: 0 solid, 1 dashed, 2 dotted, 3 dash-dot, 4 dash-dot-dot, 5 none, 6 inside. */
VQ_MXD_API uint32_t
vq_mxd_simple_line_symbol_get_simple_line_style(const vq_mxd_simple_line_symbol* symbol);
/** @} */

/** @name Cartographic line */ /** @{ */

/** The color, or null. */
VQ_MXD_API const vq_mxd_color* vq_mxd_cartographic_line_symbol_get_color(
    const vq_mxd_cartographic_line_symbol* symbol);

/** The width in points. */
VQ_MXD_API double vq_mxd_cartographic_line_symbol_get_width(
    const vq_mxd_cartographic_line_symbol* symbol);

/** The offset from the line in points. */
VQ_MXD_API double vq_mxd_cartographic_line_symbol_get_offset(
    const vq_mxd_cartographic_line_symbol* symbol);

/** The dash pattern; never null, without items for a solid line. */
VQ_MXD_API const vq_mxd_line_template* vq_mxd_cartographic_line_symbol_get_line_template(
    const vq_mxd_cartographic_line_symbol* symbol);
/** @} */

/** @name Hash line */ /** @{ */

/** The color, or null. */
VQ_MXD_API const vq_mxd_color* vq_mxd_hash_line_symbol_get_color(
    const vq_mxd_hash_line_symbol* symbol);

/** The width in points. */
VQ_MXD_API double vq_mxd_hash_line_symbol_get_width(const vq_mxd_hash_line_symbol* symbol);

/** The angle of the hashes in degrees. */
VQ_MXD_API double vq_mxd_hash_line_symbol_get_angle(const vq_mxd_hash_line_symbol* symbol);

/** The offset from the line in points. */
VQ_MXD_API double vq_mxd_hash_line_symbol_get_offset(const vq_mxd_hash_line_symbol* symbol);

/** The symbol drawn as each hash, or null. */
VQ_MXD_API const vq_mxd_symbol* vq_mxd_hash_line_symbol_get_line(
    const vq_mxd_hash_line_symbol* symbol);

/** Where hashes are drawn; never null. */
VQ_MXD_API const vq_mxd_line_template* vq_mxd_hash_line_symbol_get_line_template(
    const vq_mxd_hash_line_symbol* symbol);
/** @} */

/** @name Marker line */ /** @{ */

/** The offset from the line in points. */
VQ_MXD_API double vq_mxd_marker_line_symbol_get_offset(const vq_mxd_marker_line_symbol* symbol);

/** The marker repeated along the line, or null. */
VQ_MXD_API const vq_mxd_symbol* vq_mxd_marker_line_symbol_get_pattern_marker(
    const vq_mxd_marker_line_symbol* symbol);

/** Where markers are drawn; never null. */
VQ_MXD_API const vq_mxd_line_template* vq_mxd_marker_line_symbol_get_line_template(
    const vq_mxd_marker_line_symbol* symbol);
/** @} */

/** @name Multilayer line */ /** @{ */

/** The layers, the first drawn on top; never null. */
VQ_MXD_API const vq_mxd_line_symbols* vq_mxd_multilayer_line_symbol_get_line_symbols(
    const vq_mxd_multilayer_line_symbol* symbol);
/** @} */

/** @name List of line symbols */ /** @{ */

/** The number of line symbols. */
VQ_MXD_API int64_t vq_mxd_line_symbols_get_size(const vq_mxd_line_symbols* symbols);

/** The line symbol at the index, or null for an index past the last. The index must not be
   negative: that is not checked. */
VQ_MXD_API const vq_mxd_symbol* vq_mxd_line_symbols_get(const vq_mxd_line_symbols* symbols,
                                                        int32_t index);
/** @} */

/** @name Simple fill */ /** @{ */

/** The color, or null. */
VQ_MXD_API const vq_mxd_color* vq_mxd_simple_fill_symbol_get_color(
    const vq_mxd_simple_fill_symbol* symbol);

/** The outline, or null. */
VQ_MXD_API const vq_mxd_symbol* vq_mxd_simple_fill_symbol_get_outline(
    const vq_mxd_simple_fill_symbol* symbol);
/** @} */

/** @name Line fill */ /** @{ */

/** The line drawn as hatching, or null. */
VQ_MXD_API const vq_mxd_symbol* vq_mxd_line_fill_symbol_get_pattern(
    const vq_mxd_line_fill_symbol* symbol);

/** The outline, or null. */
VQ_MXD_API const vq_mxd_symbol* vq_mxd_line_fill_symbol_get_outline(
    const vq_mxd_line_fill_symbol* symbol);

/** The angle of the hatching in degrees. */
VQ_MXD_API double vq_mxd_line_fill_symbol_get_angle(const vq_mxd_line_fill_symbol* symbol);

/** The offset of the hatching in points. */
VQ_MXD_API double vq_mxd_line_fill_symbol_get_offset(const vq_mxd_line_fill_symbol* symbol);

/** The distance between two lines in points. */
VQ_MXD_API double vq_mxd_line_fill_symbol_get_separation(const vq_mxd_line_fill_symbol* symbol);
/** @} */

/** @name Marker fill */ /** @{ */

/** The marker repeated over the area, or null. */
VQ_MXD_API const vq_mxd_symbol* vq_mxd_marker_fill_symbol_get_marker(
    const vq_mxd_marker_fill_symbol* symbol);

/** The outline, or null. */
VQ_MXD_API const vq_mxd_symbol* vq_mxd_marker_fill_symbol_get_outline(
    const vq_mxd_marker_fill_symbol* symbol);

/** The offset of the markers to the right in points. */
VQ_MXD_API double vq_mxd_marker_fill_symbol_get_offset_x(const vq_mxd_marker_fill_symbol* symbol);

/** The offset of the markers upwards in points. */
VQ_MXD_API double vq_mxd_marker_fill_symbol_get_offset_y(const vq_mxd_marker_fill_symbol* symbol);

/** The distance between two markers of a row in points. */
VQ_MXD_API double vq_mxd_marker_fill_symbol_get_separation_x(
    const vq_mxd_marker_fill_symbol* symbol);

/** The distance between two rows of markers in points. */
VQ_MXD_API double vq_mxd_marker_fill_symbol_get_separation_y(
    const vq_mxd_marker_fill_symbol* symbol);

/** How the markers are placed, as stored: 0 in a grid, 1 at random. */
VQ_MXD_API uint32_t vq_mxd_marker_fill_symbol_get_random(const vq_mxd_marker_fill_symbol* symbol);
/** @} */

/** @name Multilayer fill */ /** @{ */

/** The layers, the first drawn on top; never null. */
VQ_MXD_API const vq_mxd_fill_symbols* vq_mxd_multilayer_fill_symbol_get_fill_symbols(
    const vq_mxd_multilayer_fill_symbol* symbol);
/** @} */

/** @name List of fill symbols */ /** @{ */

/** The number of fill symbols. */
VQ_MXD_API int64_t vq_mxd_fill_symbols_get_size(const vq_mxd_fill_symbols* symbols);

/** The fill symbol at the index, or null for an index outside. */
VQ_MXD_API const vq_mxd_symbol* vq_mxd_fill_symbols_get(const vq_mxd_fill_symbols* symbols,
                                                        int32_t index);
/** @} */

#ifdef __cplusplus
}
#endif

#endif
